#include "frmhelp.h"

#include "shell/modapi.h"

#include "platform/dialogparts.h"
#include "platform/texteditview.h"

#include <QPushButton>

namespace zt {

namespace {

const QString kCaption = QStringLiteral("Specific Help: Zelvo Tessara");

} // namespace

frmHelp::frmHelp(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("frmHelp"), kCaption);
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {memo("txtHelp", ui.txtHelp, ui.txtHelpView), "", "", Place::Line},
                       {button("Command1", ui.Command1), "Close", "", Place::Cancel},
                   });
    ui.txtHelpView->setReadOnly(true);
    ui.Command1->setDefault(true);
    onClick(ui.Command1, [this] { Command1_Click(); });
    window->resize(560, 480);
}

frmHelp::~frmHelp() = default;

void frmHelp::load() {
    centreOver(*this, nullptr);
    stayOnTop(*this);
}

void frmHelp::formUnload(bool&) {
    setCaption(kCaption);
}

void frmHelp::Command1_Click() {
    unload();
}

} // namespace zt
