#include "frmhelp.h"

#include "platform/guard.h"
#include "platform/texteditview.h"
#include "shell/modapi.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

namespace zt {

namespace {

const QString kCaption = QStringLiteral("Specific Help: Zelvo Tessara");

} // namespace

frmHelp::frmHelp(FormRegistry& forms) : Form(forms) {
    auto* window = new QWidget(nullptr, Qt::Dialog);
    setWindow(window);
    window->setObjectName(QStringLiteral("frmHelp"));
    setCaption(kCaption);
    window->resize(560, 480);

    ui.txtHelpView = new TextEditView(ui.txtHelp, window);
    ui.txtHelpView->setObjectName(QStringLiteral("txtHelp"));
    ui.txtHelpView->setReadOnly(true);

    ui.Command1 = new QPushButton(QStringLiteral("Close"), window);
    ui.Command1->setObjectName(QStringLiteral("Command1"));
    ui.Command1->setDefault(true);
    QObject::connect(ui.Command1, &QPushButton::clicked, ui.Command1,
                     guarded([this](bool) { Command1_Click(); }));

    auto* buttons = new QDialogButtonBox(window);
    buttons->addButton(ui.Command1, QDialogButtonBox::RejectRole);

    auto* layout = new QVBoxLayout(window);
    layout->addWidget(ui.txtHelpView, 1);
    layout->addWidget(buttons);
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
