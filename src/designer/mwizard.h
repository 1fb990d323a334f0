#pragma once

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class Pickers;
class TextEditView;

// The generated code's window. Generation carries the design's body through its
// txtCode; no command shows the window itself, but it stands complete.
class Mwizard : public Form {
public:
    explicit Mwizard(FormRegistry& forms);
    ~Mwizard() override;

    // Copy to Clipboard, then unload.
    void OKButton_Click();
    // Close: back to the designer.
    void CancelButton_Click();
    // Export as text: the code as one written line of a .txt file.
    void btnExport_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        TextControl txtCode;
        TextEditView* txtCodeView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnExport = nullptr;
        CommonDialog ComDlg;
    } ui;
};

} // namespace zt
