#include "mwizard.h"

#include "designfile.h"
#include "morvane.h"

#include "platform/desktop.h"
#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/services.h"

#include <QPushButton>

namespace zt {

Mwizard::Mwizard(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("Mwizard"), QStringLiteral("Morvane: The Generated Code"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {memo("txtCode", ui.txtCode, ui.txtCodeView), "", "", Place::Line},
                       {button("OKButton", ui.OKButton), "Copy to Clipboard", "", Place::Accept},
                       {button("CancelButton", ui.CancelButton), "Close", "", Place::Cancel},
                       {button("btnExport", ui.btnExport), "Export as text", "", Place::Help},
                   });
    window->resize(560, 360);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnExport, [this] { btnExport_Click(); });
}

Mwizard::~Mwizard() = default;

void Mwizard::OKButton_Click() {
    Clipboard& clipboard = *services().clipboard;
    clipboard.clear();
    clipboard.setText(ui.txtCode.text());
    unload();
}

void Mwizard::CancelButton_Click() {
    forms().get<morvane>().show();
    unload();
}

// Any failure after the dialog ends the export silently.
void Mwizard::btnExport_Click() {
    ui.ComDlg.fileName.clear();
    ui.ComDlg.filter = QStringLiteral("Text Files (*.txt)|*.txt");
    ui.ComDlg.showSave();
    orEndSilently([&] {
        if (!ui.ComDlg.fileName.isEmpty())
            writeDesignFile(ui.ComDlg.fileName, ui.txtCode.text());
    });
}

} // namespace zt
