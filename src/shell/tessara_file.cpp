// The file commands of the visual view. They share the document's fields with the
// source view and differ from its commands in order and failure paths on purpose.
#include "tessara.h"

#include "document.h"
#include "zelvo.h"

#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/textfiles.h"
#include "visual/bridge.h"

#include <QAction>
#include <QFile>

namespace zt {

namespace {

const QString kNewCaption = QStringLiteral("Untitled(): Zelvo Tessara 3.0 - By Orvek");

} // namespace

void Tessara::mnuNew() {
    const int answer = services().prompts->msgBox(
        QStringLiteral("Are you sure you want to close existing document?"),
        vbYesNo | vbQuestion | vbDefaultButton2, document::kAssistant);
    if (answer == vbNo) {
        ui.txtComp->setFocus();
        return;
    }
    Zelvo& zelvo = forms().get<Zelvo>();
    ui.txtComp->newDocument();
    zelvo.ui.comdlg.fileName.clear();
    zelvo.Tag.clear();
    zelvo.encoding = {};
    ui.ComDlg.fileName.clear();
    setCaption(kNewCaption);
}

// The load after the dialog, shared by both ways through Open. False when the
// chosen file was refused and the document stays as it was.
bool Tessara::openChosenFile() {
    Zelvo& zelvo = forms().get<Zelvo>();
    zelvo.ui.comdlg.showOpen();
    if (zelvo.ui.comdlg.fileName.isEmpty())
        return true;
    if (!document::acceptsFile(services(), zelvo.ui.comdlg.fileName))
        return false;
    ui.txtComp->loadDocument(zelvo.ui.comdlg.fileName);
    zelvo.encoding = textfiles::encodingOf(zelvo.ui.comdlg.fileName);
    zelvo.Tag = zelvo.ui.comdlg.fileName;
    pushRecentVisual();
    titleupdate();
    return true;
}

void Tessara::mnuOpen() {
    Zelvo& zelvo = forms().get<Zelvo>();
    CommonDialog& comdlg = zelvo.ui.comdlg;
    bool opened = true;
    if (zelvo.ui.star.text().isEmpty()) {
        comdlg.cancelError = true;
        comdlg.defaultExt = QStringLiteral("html");
        comdlg.filter = document::kFilter;
        opened = openChosenFile();
    } else {
        comdlg.cancelError = true;
        if (document::askSaveFirst(services())) {
            mnuSave();
        } else {
            comdlg.defaultExt = QStringLiteral("html");
            opened = openChosenFile();
        }
    }
    if (!opened) {
        comdlg.fileName.clear();
        return;
    }
    // Kept as it is: after a save with no dialog the name is empty here, and the
    // document loses its path.
    zelvo.Tag = comdlg.fileName;
    comdlg.fileName.clear();
}

void Tessara::mnuSave() {
    Zelvo& zelvo = forms().get<Zelvo>();
    CommonDialog& comdlg = zelvo.ui.comdlg;
    comdlg.defaultExt = QStringLiteral("html");
    comdlg.filter = document::kFilter;
    if (zelvo.Tag.isEmpty()) {
        comdlg.showSave();
        if (comdlg.fileName.isEmpty())
            return;
        zelvo.Tag = comdlg.fileName;
    }
    saveVisualFile();
    zelvo.ui.star.setText(QString());
    titleupdate();
}

void Tessara::saveVisualFile() {
    Zelvo& zelvo = forms().get<Zelvo>();
    VisualSync(*ui.txtComp, RuleSet::GeneratorOnly, zelvo.ui.area);
    textfiles::write(zelvo.Tag, zelvo.ui.area.text() + QStringLiteral("\r\n"), zelvo.encoding);
}

void Tessara::mnuSaveAs() {
    Zelvo& zelvo = forms().get<Zelvo>();
    CommonDialog& comdlg = zelvo.ui.comdlg;
    orEndSilently([&] {
        // The form's own dialog is set up, and the source view's is the one shown.
        ui.ComDlg.cancelError = true;
        comdlg.defaultExt = QStringLiteral("html");
        comdlg.filter = document::kFilter;
        comdlg.showSave();
        if (comdlg.fileName.isEmpty())
            return;
        saveVisualFile();
        zelvo.Tag = comdlg.fileName;
        titleupdate();
    });
    comdlg.fileName.clear();
}

void Tessara::recent_Click(int index) {
    Zelvo& zelvo = forms().get<Zelvo>();
    orEndSilently([&] {
        if (!zelvo.ui.star.text().isEmpty()) {
            if (document::askSaveFirst(services())) {
                mnuSave();
                return;
            }
        }
        const QString chosen = ui.recent[std::size_t(index)]->text();
        if (!document::acceptsFile(services(), chosen))
            return;
        ui.txtComp->loadDocument(chosen);
        zelvo.encoding = textfiles::encodingOf(chosen);
        zelvo.ui.comdlg.fileName = chosen;
        zelvo.Tag = zelvo.ui.comdlg.fileName;
        titleupdate();
    });
}

void Tessara::pushRecentVisual() {
    SettingsStore& store = *services().settings;
    const QString section = QStringLiteral("MRUs");
    const QString chosen = forms().get<Zelvo>().ui.comdlg.fileName;
    for (int i = 0; i <= 4; ++i) {
        if (store.getSetting(document::kApp, section, QString::number(i)) == chosen)
            return;
    }
    for (int i = 0; i <= 3; ++i) {
        store.saveSetting(document::kApp, section, QString::number(i),
                          store.getSetting(document::kApp, section, QString::number(i + 1)));
    }
    store.saveSetting(document::kApp, section, QStringLiteral("4"), chosen);
    Zelvo& zelvo = forms().get<Zelvo>();
    for (int i = 0; i <= 4; ++i) {
        const QString value = store.getSetting(document::kApp, section, QString::number(i));
        for (QAction* item : {ui.recent[std::size_t(i)], zelvo.ui.recent[std::size_t(i)]}) {
            item->setVisible(!value.isEmpty());
            if (!value.isEmpty())
                item->setText(value);
        }
    }
}

void Tessara::mnuExit() {
    // The bare name the crash timer carries, not the path it saves to.
    document::exitProgram(
        services(), [this] { ui.txtComp->setFocus(); }, ui.TimeCrashSave.tag);
}

} // namespace zt
