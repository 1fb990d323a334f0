#include "zelvo.h"

#include "closing.h"
#include "document.h"
#include "commandmap.h"

#include "platform/eventwatcher.h"
#include "platform/formregistry.h"
#include "platform/geometry.h"
#include "platform/guard.h"
#include "platform/menutable.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/statusbar.h"
#include "platform/texteditview.h"
#include "platform/toolbartable.h"
#include "visual/bridge.h"

#include <QAction>
#include <QHBoxLayout>
#include <QEvent>
#include <QFontDatabase>
#include <QMainWindow>
#include <QMenuBar>
#include <QTextDocument>

namespace zt {

Zelvo::Zelvo(FormRegistry& forms)
    : Form(forms), ui(*forms.services().pickers), m_window(new QMainWindow) {
    setWindow(m_window);
    m_window->setObjectName(QStringLiteral("Zelvo"));
    m_window->resize(twips(12000), twips(8400));
    setCaption(QStringLiteral("Untitled(): Zelvo - By Orvek"));

    buildMenus(*this, *m_window->menuBar(), zelvoMenus());
    for (int i = 0; i < int(ui.recent.size()); ++i) {
        QAction* item = qobject_cast<QMenu*>(ui.mnuRecent->menu())->addAction(QString());
        item->setObjectName(QStringLiteral("recent(%1)").arg(i));
        QObject::connect(item, &QAction::triggered, item,
                         guarded([this, i](bool) { recent_Click(i); }));
        ui.recent[std::size_t(i)] = item;
    }

    ui.Toolbar1 = m_window->addToolBar(QStringLiteral("Toolbar1"));
    ui.Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    ui.Toolbar1->setMovable(false);
    buildToolbar(*ui.Toolbar1, zelvoToolKeys(),
                 [this](const QString& key) { Toolbar1_ButtonClick(key); });

    auto* central = new QWidget;
    m_window->setCentralWidget(central);
    ui.frmformatbar = new QWidget(central);
    ui.frmformatbar->setObjectName(QStringLiteral("frmformatbar"));
    auto* formatRow = new QHBoxLayout(ui.frmformatbar);
    formatRow->setContentsMargins(2, 2, 2, 2);
    formatRow->setSpacing(1);
    buildFormatBar(*this, *ui.frmformatbar, zelvoFormatButtons(),
                   [this](const QString& text) { ui.StatusBar1->setPanelText(1, text); });
    formatRow->addStretch(1);
    ui.frmformatbar->setGeometry(0, 0, twips(12000), twips(600));

    ui.areaView = new TextEditView(ui.area, central);
    ui.areaView->setObjectName(QStringLiteral("area"));
    ui.areaView->setLineWrapMode(QPlainTextEdit::NoWrap);
    ui.areaView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui.areaView->setGeometry(0, twips(600), twips(9000), twips(6400));

    ui.StatusBar1 = new StatusBar({0, 120, 90, 50, 50, 40}, m_window);
    m_window->setStatusBar(ui.StatusBar1);
    ui.StatusBar1->showKeyStates(4, 5, 6);

    ui.area.addChangeHandler([this] { area_Change(); });
    new EventWatcher(m_window, QEvent::Resize, [this] { Form_Resize(); });
}

Zelvo::~Zelvo() = default;

void Zelvo::load() {
    m_blankPage = document::blankPage();
    updateLineCount();
}

void Zelvo::formUnload(bool& cancel) {
    unloadDialogs(forms());
    cancel = true;
    mnuExit();
}

void Zelvo::Form_Resize() {
    const int height = m_window->height() - twips(2000);
    if (height < 0)
        return;
    ui.areaView->resize(ui.areaView->width(), height);
}

void Zelvo::titleupdate() {
    setCaption(document::caption(ui.star.text(), Tag));
}

void Zelvo::updateLineCount() {
    // Lines as the editor shows them; it does not wrap, so one per break plus one.
    ui.StatusBar1->setPanelText(
        3, QStringLiteral("Lines: %1").arg(ui.areaView->document()->blockCount()));
}

void Zelvo::area_Change() {
    ui.star.setText(QStringLiteral("*"));
    titleupdate();
    updateLineCount();
    ui.StatusBar1->setPanelText(1, QStringLiteral("Ready: Zelvo Tessara - By: Orvek"));
}

void Zelvo::mnuEdit() { ui.mnuFindNext->setEnabled(!ui.txtSearch.text().isEmpty()); }

void Zelvo::Toolbar1_ButtonClick(const QString& key) { dispatchKey(*this, zelvoToolKeys(), key); }

void Zelvo::deleteKey() { ui.area.setSelText(QString()); }

void Zelvo::mnuTessara() {
    SwitchToVisual(forms());
}

void Zelvo::mnuViewTessara() {
    mnuTessara();
}

} // namespace zt
