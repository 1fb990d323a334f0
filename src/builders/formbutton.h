#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/textcontrol.h"

class QPushButton;
class QRadioButton;

namespace zt {

class TextLineView;

// Insert Button: a push, submit or reset button. Its opener picks the kind; opened
// without one, it writes an empty type.
class formButton : public ElementDialog {
public:
    explicit formButton(FormRegistry& forms);
    ~formButton() override;

    void accept() override;

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtValue;
        TextLineView* txtValueView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        QRadioButton* radButton = nullptr;
        QRadioButton* radSubmit = nullptr;
        QRadioButton* radReset = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formButton(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
