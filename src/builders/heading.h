#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

#include <array>

class QListWidget;
class QPushButton;
class QRadioButton;

namespace zt {

class TextLineView;

// Insert Heading: a heading of level 1 to 6 with an alignment, around a text that
// the source view prefills with its selection.
class heading : public ElementDialog {
public:
    explicit heading(FormRegistry& forms);
    ~heading() override;

    void load() override;

    struct Ui {
        TextControl compOrEdit;
        QRadioButton* radLevel1 = nullptr;
        QRadioButton* radLevel2 = nullptr;
        QRadioButton* radLevel3 = nullptr;
        QRadioButton* radLevel4 = nullptr;
        QRadioButton* radLevel5 = nullptr;
        QRadioButton* radLevel6 = nullptr;
        QListWidget* listAlign = nullptr;
        TextControl txtHeading;
        TextLineView* txtHeadingView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;

private:
    // The number of the level that is on.
    int level() const;
};

} // namespace zt
