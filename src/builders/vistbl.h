#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"
#include "platform/timer.h"

#include <array>

class QLabel;
class QPushButton;

namespace zt {

// Visual Table: a grid of ten by ten cells. The cells from the top-left corner to the
// one under the pointer light up; a click inserts a plain table of that shape.
class visTbl : public ElementDialog {
public:
    explicit visTbl(FormRegistry& forms);
    ~visTbl() override;

    void num11_MouseMove(int index);
    void num11_Click(int index);
    void Timer1_Timer();
    void Form_MouseMove();

    // Whether cell index is painted in the highlight colour now.
    bool isLit(int index) const;

    struct Ui {
        TextControl compOrEdit;
        // Index = row * 10 + column, both from 0.
        std::array<QLabel*, 100> num11{};
        Timer Timer1{100};
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;

private:
    QWidget* makeGrid(QWidget* parent);
    void paintAll(bool lit);
    void paintUpTo(int index);
    void paint(int index, bool lit);

    int m_over = -1;
    int m_clicked = -1;
};

} // namespace zt
