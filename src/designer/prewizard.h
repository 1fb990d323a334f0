#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QComboBox;
class QPushButton;

namespace zt {

class TextLineView;

// The last step of the designer's generation: the form's name, action and method,
// then the design wrapped in a form element for the view that opened the designer.
class prewizard : public Form {
public:
    explicit prewizard(FormRegistry& forms);
    ~prewizard() override;

    // Continue: both fields are required; the form goes to the caller and this
    // window unloads, with the designer left open.
    void OKButton_Click();
    // Back: only hides, so the entries stay.
    void CancelButton_Click();

    struct Ui {
        TextControl txtFormName;
        TextLineView* txtFormNameView = nullptr;
        TextControl txtFormAction;
        TextLineView* txtFormActionView = nullptr;
        QComboBox* cmbAction = nullptr;
        // The caller, written by the view's opener: "edit" or "comp".
        TextControl txtCompOrEdit;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

// The design's body wrapped in a form element between the generator's comments.
QString formCode(const QString& name, const QString& method, const QString& action,
                 const QString& body);

} // namespace zt
