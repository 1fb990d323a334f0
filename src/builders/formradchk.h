#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace zt {

class TextLineView;

// Insert Option Buttons: a radio button or a check box, ticked or not. Its help is a
// text of its own, shown in a box.
class formRadChk : public ElementDialog {
public:
    explicit formRadChk(FormRegistry& forms);
    ~formRadChk() override;

    void accept() override;
    void help() override;

    struct Ui {
        TextControl compOrEdit;
        // The text the help button shows; never on screen.
        TextControl txtHelp;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtValue;
        TextLineView* txtValueView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        QRadioButton* radRadio = nullptr;
        QRadioButton* radCheckbox = nullptr;
        QCheckBox* chkChecked = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formRadChk(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
