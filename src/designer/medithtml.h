#pragma once

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class Pickers;
class TextEditView;
class TextLineView;

// The design as text, to edit by hand while the designer is hidden. A colour
// picker and the screen's font names stand beside it as aids to typing.
class MeditHTML : public Form {
public:
    explicit MeditHTML(FormRegistry& forms);
    ~MeditHTML() override;

    // However the window goes, the designer comes back.
    void formUnload(bool& cancel) override;

    // OK: the text becomes the design.
    void OKButton_Click();
    // Cancel: the design stays as it was.
    void CancelButton_Click();
    // Show Palette: the colour as #RRGGBB; none taken empties the box.
    void btnPalete_Click();
    // Copy to clipboard: the colour's text.
    void btnClip_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        TextControl txtCode;
        TextEditView* txtCodeView = nullptr;
        TextControl txtColour;
        TextLineView* txtColourView = nullptr;
        QPushButton* btnPalete = nullptr;
        QPushButton* btnClip = nullptr;
        QListWidget* listFont = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        CommonDialog ComDlg;
    } ui;
};

} // namespace zt
