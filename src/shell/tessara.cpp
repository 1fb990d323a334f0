#include "tessara.h"

#include "closing.h"
#include "commandmap.h"
#include "document.h"
#include "viewframe.h"
#include "zelvo.h"

#include "platform/eventwatcher.h"
#include "platform/formregistry.h"
#include "platform/geometry.h"
#include "platform/guard.h"
#include "platform/menutable.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/statusbar.h"
#include "visual/bridge.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace zt {

namespace {

void place(PageEngine& engine, int left, int top, int width, int height) {
    if (QWidget* w = engine.widget())
        w->setGeometry(left, top, width, height);
}

} // namespace

Tessara::Tessara(FormRegistry& forms)
    : Form(forms), ui(*forms.services().pickers), m_window(new QMainWindow) {
    setWindow(m_window);
    m_window->setObjectName(QStringLiteral("Tessara"));
    m_window->resize(twips(12000), twips(8400));
    setCaption(QStringLiteral("Untitled(): Zelvo Tessara 3.0 - By Orvek"));

    QWidget* central = buildViewFrame(*this, *m_window, tessaraMenus(), tessaraToolKeys(),
                                      tessaraFormatButtons(), twips(900));

    ui.txtComp = services().makeEngine(central);
    place(*ui.txtComp, 0, twips(960), twips(11750), twips(5055));
    ui.tagbar = services().makeEngine(central);
    place(*ui.tagbar, 0, 0, twips(300), twips(300));
    ui.tagbar->setVisible(false);

    ui.ClosePrev = new QToolButton(central);
    ui.ClosePrev->setObjectName(QStringLiteral("ClosePrev"));
    ui.ClosePrev->setText(QStringLiteral("X"));
    ui.ClosePrev->setToolTip(QStringLiteral("Close Preview Mode"));
    ui.ClosePrev->setVisible(false);
    QObject::connect(ui.ClosePrev, &QToolButton::clicked, ui.ClosePrev,
                     guarded([this](bool) { ClosePrev_Click(); }));

    ui.Timer1.onTimer = [this] { Timer1_Timer(); };
    ui.TimeCrashSave.onTimer = [this] { TimeCrashSave_Timer(); };
    ui.txtComp->onKeyPress = [this](QChar) { txtComp_onkeypress(); };
    ui.txtComp->onDisplayChanged = [this] { txtComp_DisplayChanged(); };
    ui.txtComp->onMouseMove = [this] { txtComp_onmousemove(); };
    new EventWatcher(m_window, QEvent::Resize, [this] { Form_Resize(); });
}

Tessara::~Tessara() = default;

void Tessara::formUnload(bool& cancel) {
    unloadDialogs(forms());
    cancel = true;
    mnuExit();
}

void Tessara::Form_Resize() {
    QWidget* view = ui.txtComp->widget();
    if (!view)
        return;
    // A window too small for the page ends the step silently where a size would
    // turn negative.
    const int width = m_window->width() - twips(250);
    if (width < 0)
        return;
    view->resize(width, view->height());
    const int height = m_window->height() - twips(2000);
    if (height < 0)
        return;
    view->resize(width, height);
}

void Tessara::titleupdate() {
    const Zelvo& zelvo = forms().get<Zelvo>();
    setCaption(document::caption(zelvo.ui.star.text(), zelvo.Tag));
}

void Tessara::mnuEditor() {
    Zelvo& zelvo = forms().get<Zelvo>();
    VisualSync(*ui.txtComp, RuleSet::FullScrub, zelvo.ui.area);
    zelvo.show();
    hide();
}

void Tessara::mnuViewEditor() {
    mnuEditor();
}

void Tessara::Toolbar1_ButtonClick(const QString& key) {
    try {
        dispatchKey(*this, tessaraToolKeys(), key);
    } catch (const RuntimeFailure&) {
    }
}

void Tessara::VisualInsert(const QString& fragment) {
    ui.tagbar->setDocumentHTML(fragment);
    ui.Timer1.setEnabled(true);
}

void Tessara::Timer1_Timer() {
    ui.tagbar->setVisible(false);
    ui.tagbar->execCommand(DECMD_SELECTALL);
    ui.tagbar->execCommand(DECMD_CUT);
    ui.txtComp->setFocus();
    ui.txtComp->execCommand(DECMD_PASTE);
    ui.tagbar->setVisible(false);
    ui.Timer1.setEnabled(false);
    ui.tagbar->setVisible(false);
}

void Tessara::txtComp_onkeypress() {
    forms().get<Zelvo>().ui.star.setText(QStringLiteral("*"));
    titleupdate();
}

void Tessara::txtComp_DisplayChanged() {
    titleupdate();
}

void Tessara::txtComp_onmousemove() {
    ui.StatusBar1->setPanelText(1, QStringLiteral("Ready: Zelvo Tessara 3.0 - By: Orvek"));
}

void Tessara::ClosePrev_Click() {
    ui.txtComp->setBrowseMode(false);
    ui.ClosePrev->setVisible(false);
    ui.tagbar->setVisible(true);
    ui.frmformatbar->setVisible(true);
    ui.Toolbar1->setVisible(true);
    if (QWidget* view = ui.txtComp->widget()) {
        view->resize(view->width(), twips(5055));
        view->move(view->x(), twips(960));
    }
}

} // namespace zt
