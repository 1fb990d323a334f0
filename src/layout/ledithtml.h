#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextEditView;

// The layout as text, to edit by hand while the Layout Manager is hidden.
class LEditHTML : public Form {
public:
    explicit LEditHTML(FormRegistry& forms);
    ~LEditHTML() override;

    // However the window goes, the Layout Manager comes back.
    void formUnload(bool& cancel) override;

    // OK: the text becomes the layout.
    void OKButton_Click();
    // Cancel: the layout stays as it was.
    void CancelButton_Click();

    struct Ui {
        TextControl txtCode;
        TextEditView* txtCodeView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

} // namespace zt
