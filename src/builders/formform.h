#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QComboBox;
class QPushButton;

namespace zt {

class TextLineView;

// Insert Form: a form with its name, method, action and target and a submit
// button, for the source view, the visual view or the JavaScript Console.
class formForm : public ElementDialog {
public:
    explicit formForm(FormRegistry& forms);
    ~formForm() override;

    // OK: a form needs a name; its warning has a title of its own.
    void accept() override;

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtAction;
        TextLineView* txtActionView = nullptr;
        QComboBox* cmbMethod = nullptr;
        QComboBox* cmbTarget = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
