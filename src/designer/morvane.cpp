#include "morvane.h"

#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"

#include <QCursor>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace zt {

namespace {

// The form box a design starts from. The document is this opening tag alone: the
// engine closes it.
const QString kDefaultFormBox = QStringLiteral(
    R"(<div id="MorvaneForm" style="position:relative;left:0px;top:0px;width:400px;)"
    R"(height:300px;background-color:#FFFFFF;color:#000000;border-width:1;border-style:solid;">)");

// A column of the buttons of rows, framed and each as wide as the column.
QWidget* buttonColumn(morvane& form, const std::vector<FormatButton<morvane>>& rows) {
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    buildFormatBar(form, *column, rows, {});
    for (const FormatButton<morvane>& row : rows) {
        QToolButton* button = form.ui.*row.button;
        button->setAutoRaise(false);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    return column;
}

} // namespace

morvane::morvane(FormRegistry& forms)
    : Form(forms), ui(*forms.services().pickers), m_window(new QMainWindow) {
    setWindow(m_window);
    m_window->setObjectName(QStringLiteral("morvane"));
    m_window->resize(900, 680);
    setCaption(QStringLiteral("Morvane: Form Designing Wizard - By Orvek"));

    buildMenus(*this, *m_window->menuBar(), morvaneMenus());
    ui.Toolbar1 = m_window->addToolBar(QStringLiteral("Toolbar1"));
    ui.Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    ui.Toolbar1->setMovable(false);
    buildToolbar(*ui.Toolbar1, morvaneToolKeys(),
                 [this](const QString& key) { Toolbar1_ButtonClick(key); });

    auto* central = new QWidget;
    m_window->setCentralWidget(central);
    auto* columns = new QHBoxLayout(central);

    // The insert buttons stand in their frame; Generate stands apart, so that it
    // stays live while preview disables the frame.
    const auto& buttons = morvaneButtons();
    ui.toolbar = buttonColumn(*this, {buttons.begin(), buttons.end() - 1});
    ui.toolbar->setObjectName(QStringLiteral("toolbar"));
    static_cast<QVBoxLayout*>(ui.toolbar->layout())->addStretch(1);
    columns->addWidget(ui.toolbar);

    auto* work = new QVBoxLayout;
    columns->addLayout(work, 1);
    ui.Result = services().makeEngine(central);
    if (QWidget* view = ui.Result->widget())
        work->addWidget(view, 1);
    ui.lblGenerated = new QLabel(
        QStringLiteral(
            "Generated Field:  (Select the item below and drag drop it into the main area)"),
        central);
    ui.lblGenerated->setObjectName(QStringLiteral("lblGenerated"));
    work->addWidget(ui.lblGenerated);
    auto* strip = new QHBoxLayout;
    work->addLayout(strip);
    ui.tagbar = services().makeEngine(central);
    if (QWidget* view = ui.tagbar->widget()) {
        view->setFixedHeight(110);
        strip->addWidget(view, 1);
    }
    strip->addWidget(buttonColumn(*this, {buttons.back()}), 0, Qt::AlignBottom);

    ui.Result->setDesignSurface(true);
    ui.Result->acceptDropsFrom(*ui.tagbar);
}

morvane::~morvane() = default;

void morvane::load() {
    ui.Result->setDocumentHTML(kDefaultFormBox);
}

void morvane::mnuNew() {
    const int answer = services().prompts->msgBox(
        QStringLiteral("Are you sure you want to start off with a new form?"),
        vbYesNo | vbQuestion | vbDefaultButton2, QStringLiteral("Morvane: Create New?"));
    if (answer == vbYes)
        ui.Result->setDocumentHTML(kDefaultFormBox);
}

// The frame's close asks nothing and unloads all the same.
void morvane::mnuExit() {
    const int answer = services().prompts->msgBox(QStringLiteral("Are you sure you want to exit?"),
                                                  vbYesNo | vbQuestion | vbDefaultButton2,
                                                  QStringLiteral("Morvane: Exit?"));
    if (answer == vbYes)
        unload();
}

// The File and Format menus and Toolbar1 stay live during preview.
void morvane::mnuPreview() {
    const bool previewing = !ui.mnuPreview->isChecked();
    setMark(ui.mnuPreview, previewing);
    ui.Result->setBrowseMode(previewing);
    ui.toolbar->setEnabled(!previewing);
    ui.mnuInsert->setEnabled(!previewing);
    ui.mnuEdit->setEnabled(!previewing);
}

void morvane::Toolbar1_ButtonClick(const QString& key) {
    try {
        dispatchKey(*this, morvaneToolKeys(), key);
    } catch (const RuntimeFailure&) {
    }
}

void morvane::showBoxProperties() {
    ui.mnuBoxProps->menu()->popup(QCursor::pos());
}

} // namespace zt
