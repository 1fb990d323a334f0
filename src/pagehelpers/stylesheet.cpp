#include "stylesheet.h"

#include "stylesheetwiz.h"

#include "shell/optfunctions.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/desktop.h"
#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/services.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

styleSheet::styleSheet(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("styleSheet"),
                                    QStringLiteral("Style Sheet Creator: Zelvo"));
    setWindow(window);
    auto* column = new QVBoxLayout(window);
    ui.webber = services().makeEngine(window);
    if (QWidget* page = ui.webber->widget())
        column->addWidget(page, 1);

    auto* foot = new QHBoxLayout;
    column->addLayout(foot);
    ui.btnColourPicker = makeButton(window, "btnColourPicker", QStringLiteral("Colour &Picker"));
    ui.btnHelp = makeButton(window, "btnHelp", QStringLiteral("&Help"));
    ui.btnNext = makeButton(window, "btnNext", QStringLiteral("&Next >>"));
    ui.CancelButton = makeButton(window, "CancelButton", QStringLiteral("Close"));
    for (QPushButton* button : {ui.btnColourPicker, ui.btnHelp})
        foot->addWidget(button);
    foot->addStretch(1);
    for (QPushButton* button : {ui.btnNext, ui.CancelButton}) {
        // Enter belongs to the page's own controls.
        button->setAutoDefault(false);
        foot->addWidget(button);
    }
    window->setCancelButton(ui.CancelButton);
    window->resize(940, 720);

    onClick(ui.btnColourPicker, [this] { btnColourPicker_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
    onClick(ui.btnNext, [this] { btnNext_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

styleSheet::~styleSheet() = default;

// The page runs as in a browser, with its own controls and script.
void styleSheet::load() {
    ui.webber->setBrowseMode(true);
    ui.webber->loadDocument(services().folder->path(QStringLiteral("tools/ssc.ssc")));
}

// This button has its own spelling of the picker's file; a picker that is not there
// does nothing.
void styleSheet::btnColourPicker_Click() {
    services().launcher->start(services().folder->path(QStringLiteral("tools/ColourPicker.exe")),
                               {});
}

void styleSheet::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("stylesheet.zhp"));
}

void styleSheet::btnNext_Click() {
    forms().get<styleSheetWiz>().show();
    hide();
}

void styleSheet::CancelButton_Click() {
    unload();
}

void Zelvo::mnuStyleSheet() {
    forms().get<styleSheet>().show();
}

void Tessara::mnuStyleSheet() {
    forms().get<styleSheet>().show();
}

} // namespace zt
