#include "zelvo.h"

#include "closing.h"
#include "commandmap.h"
#include "document.h"
#include "viewframe.h"

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
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
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

    QWidget* central = buildViewFrame(*this, *m_window, zelvoMenus(), zelvoToolKeys(),
                                      zelvoFormatButtons(), twips(600));

    ui.areaView = new TextEditView(ui.area, central);
    ui.areaView->setObjectName(QStringLiteral("area"));
    ui.areaView->setLineWrapMode(QPlainTextEdit::NoWrap);
    ui.areaView->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui.areaView->setGeometry(0, twips(600), twips(9000), twips(6400));

    buildTagList(central);
    ui.tagPanel->setGeometry(twips(9000), twips(600), twips(2900), twips(6400));

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
    ui.tagPanel->resize(ui.tagPanel->width(), height);
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
    if (ui.mnuAutoRecog->isChecked())
        autoTagRecognition();
    ui.StatusBar1->setPanelText(1, QStringLiteral("Ready: Zelvo Tessara - By: Orvek"));
}

void Zelvo::mnuEdit() {
    ui.mnuFindNext->setEnabled(!ui.txtSearch.text().isEmpty());
}

void Zelvo::Toolbar1_ButtonClick(const QString& key) {
    dispatchKey(*this, zelvoToolKeys(), key);
}

void Zelvo::deleteKey() {
    ui.area.setSelText(QString());
}

void Zelvo::mnuTessara() {
    SwitchToVisual(forms());
}

void Zelvo::mnuViewTessara() {
    mnuTessara();
}

} // namespace zt
