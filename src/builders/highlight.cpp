#include "highlight.h"

#include "colours.h"
#include "highlightgen.h"
#include "platform/dialogparts.h"
#include "protocol.h"

#include "shell/modapi.h"
#include "shell/optfunctions.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

highlight::highlight(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("highlight"), QStringLiteral("Highlight Text : Zelvo"));
    setWindow(window);

    ui.txthighlightView = makeText(window, "txthighlight", ui.txthighlight);
    ui.txthighlightView->setTabChangesFocus(true);
    ui.txtColourView = makeLine(window, "txtColour", ui.txtColour);
    ui.openColor = makeButton(window, "openColor", QStringLiteral("Colour..."));
    ui.OKButton = makeButton(window, "OKButton", QStringLiteral("OK"));
    ui.CancelButton = makeButton(window, "CancelButton", QStringLiteral("Cancel"));
    ui.btnHelp = makeButton(window, "btnHelp", QStringLiteral("Help"));

    auto* colour = new QHBoxLayout;
    colour->addWidget(makeLabel(window, QStringLiteral("&Colour:"), ui.txtColourView));
    colour->addWidget(ui.txtColourView, 1);
    colour->addWidget(ui.openColor);

    auto* layout = new QVBoxLayout(window);
    layout->addWidget(
        makeLabel(window, QStringLiteral("&Text to highlight:"), ui.txthighlightView));
    layout->addWidget(ui.txthighlightView, 1);
    layout->addLayout(colour);
    layout->addWidget(makeButtonRow(window, ui.OKButton, ui.CancelButton, ui.btnHelp));
    window->resize(420, 280);

    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
    onClick(ui.openColor, [this] { openColor_Click(); });
}

highlight::~highlight() = default;

void highlight::load() {
    stayOnTop(*this);
}

void highlight::OKButton_Click() {
    const HighlightValues values{.colour = ui.txtColour.text(), .text = ui.txthighlight.text()};
    deliver(forms(), Dispatch::EditFirst, ui.compOrEdit.text(), highlightSpan(values));
    unload();
}

void highlight::CancelButton_Click() {
    unload();
}

void highlight::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("highlight.zhp"));
}

void highlight::openColor_Click() {
    pickHexColour(ui.comdlg, *ui.txtColourView);
}

} // namespace zt
