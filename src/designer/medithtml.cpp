#include "medithtml.h"

#include "morvane.h"

#include "builders/colours.h"

#include "platform/desktop.h"
#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/services.h"

#include <QListWidget>
#include <QPushButton>

namespace zt {

MeditHTML::MeditHTML(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("MeditHTML"), QStringLiteral("Morvane: Edit HTML"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {memo("txtCode", ui.txtCode, ui.txtCodeView), "", "", Place::Line},
                       {group("frmColour"), "Hex Colour Code Generator", "", Place::Line},
                       {text("txtColour", ui.txtColour, ui.txtColourView), "", "", Place::InGroup},
                       {button("btnPalete", ui.btnPalete), "Show Palette", "", Place::Beside},
                       {button("btnClip", ui.btnClip), "Copy to clipboard", "", Place::Beside},
                       {group("frmFont"), "Font Family", "", Place::InGroup},
                       {list("listFont", ui.listFont, services().desktop->screenFonts()), "", "",
                        Place::InGroup},
                       {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                       {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                   });
    window->resize(640, 480);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnPalete, [this] { btnPalete_Click(); });
    onClick(ui.btnClip, [this] { btnClip_Click(); });
}

MeditHTML::~MeditHTML() = default;

void MeditHTML::formUnload(bool& cancel) {
    (void)cancel;
    forms().get<morvane>().show();
}

void MeditHTML::OKButton_Click() {
    morvane& designer = forms().get<morvane>();
    designer.ui.Result->setDocumentHTML(ui.txtCode.text());
    designer.show();
    unload();
}

void MeditHTML::CancelButton_Click() {
    unload();
}

void MeditHTML::btnPalete_Click() {
    ui.ComDlg.showColor();
    ui.txtColour.setText(ui.ComDlg.color == 0 ? QString() : hexColour(ui.ComDlg.color));
}

void MeditHTML::btnClip_Click() {
    Clipboard& clipboard = *services().clipboard;
    clipboard.clear();
    clipboard.setText(ui.txtColour.text());
}

} // namespace zt
