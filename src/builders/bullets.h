#pragma once

#include "elementdialog.h"
#include "pointlist.h"

#include "platform/textcontrol.h"

class QComboBox;
class QListWidget;
class QRadioButton;

namespace zt {

class TextLineView;

// Bullets And Numbering: a bulleted or numbered list of the points entered, with a
// list style and a first number. It always writes into the source text.
class bullets : public ElementDialog {
public:
    explicit bullets(FormRegistry& forms);
    ~bullets() override;

    // Bullets on: the bullet shapes can be chosen, the numbers and the start cannot.
    void radBul_Click();
    // Numbering on: the reverse.
    void radNum_Click();

    struct Ui : PointControls {
        TextControl compOrEdit;
        QRadioButton* radBul = nullptr;
        QRadioButton* radNum = nullptr;
        QListWidget* listTypeBul = nullptr;
        QListWidget* listTypeNum = nullptr;
        QComboBox* listTypeBula = nullptr;
        TextControl txtStart;
        TextLineView* txtStartView = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;
    PointList pointList;

protected:
    QString fragment() override;
};

} // namespace zt
