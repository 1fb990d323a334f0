// The file commands of the source view. Their orders, failure paths and the
// fields they leave behind are the program's behaviour and are kept as they are.
#include "zelvo.h"

#include "document.h"
#include "tessara.h"

#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textfiles.h"

#include <QAction>
#include <QFile>

namespace zt {

void Zelvo::setUpFileDialog(const QString& defaultExt) {
    ui.comdlg.cancelError = true;
    ui.comdlg.defaultExt = defaultExt;
    ui.comdlg.filter = document::kFilter;
}

void Zelvo::mnuew() {
    Tag.clear();
    if (!ui.star.text().isEmpty()) {
        const int answer =
            services().prompts->msgBox(QStringLiteral("File not saved. Save file now?"),
                                       vbYesNo | vbQuestion, document::kAssistant);
        if (answer == vbYes) {
            mnuSave();
            return;
        }
    }
    ui.area.setText(m_blankPage);
    encoding = {};
    ui.star.setText(QString());
    setCaption(document::caption(ui.star.text(), QStringLiteral("Untitled")));
}

void Zelvo::mnuOpen() {
    orEndSilently([&] {
        setUpFileDialog(QStringLiteral("*.html"));
        ui.comdlg.showOpen();
        if (ui.comdlg.fileName.isEmpty() || !document::acceptsFile(services(), ui.comdlg.fileName))
            return;
        loadSourceFile();
        Tag = ui.comdlg.fileName;
        pushRecentSource();
        // Never reached: the push above always fails, so the name stays.
        ui.comdlg.fileName.clear();
    });
}

void Zelvo::loadSourceFile() {
    ui.area.setText(QString());
    const textfiles::TextFile file = textfiles::read(ui.comdlg.fileName);
    ui.area.setText(file.text);
    encoding = file.encoding;
    titleupdate();
}

void Zelvo::mnuSave() {
    orEndSilently([&] {
        setUpFileDialog(QStringLiteral("html"));
        if (!Tag.isEmpty()) {
            saveSourceFile();
            ui.star.setText(QString());
            titleupdate();
            return;
        }
        ui.comdlg.showSave();
        if (ui.comdlg.fileName.isEmpty())
            return;
        Tag = ui.comdlg.fileName;
        saveSourceFile();
        ui.star.setText(QString());
        pushRecentSource();
        titleupdate();
    });
    ui.comdlg.fileName.clear();
}

void Zelvo::saveSourceFile() {
    // One line written: the text and a line break, so each save and load cycle
    // adds a break at the end.
    textfiles::write(Tag, ui.area.text() + QStringLiteral("\r\n"), encoding);
}

void Zelvo::mnuSaveAs() {
    orEndSilently([&] {
        setUpFileDialog(QStringLiteral("html"));
        ui.comdlg.showSave();
        if (ui.comdlg.fileName.isEmpty())
            return;
        // Written before Tag changes: the text goes to the old path.
        saveSourceFile();
        ui.star.setText(QString());
        Tag = ui.comdlg.fileName;
        titleupdate();
    });
    ui.comdlg.fileName.clear();
}

void Zelvo::mnuInsFile() {
    ui.comdlg.showOpen();
    if (ui.comdlg.fileName.isEmpty() || !document::acceptsFile(services(), ui.comdlg.fileName))
        return;
    const QStringList lines = textfiles::readLines(ui.comdlg.fileName);
    for (const QString& line : lines)
        ui.area.setSelText(line + QStringLiteral("\r\n"));
}

void Zelvo::recent_Click(int index) {
    orEndSilently([&] {
        if (!ui.star.text().isEmpty()) {
            if (document::askSaveFirst(services())) {
                mnuSave();
                return;
            }
        }
        const QString chosen = ui.recent[std::size_t(index)]->text();
        if (!document::acceptsFile(services(), chosen))
            return;
        const textfiles::TextFile file = textfiles::read(chosen);
        ui.area.setText(file.text);
        encoding = file.encoding;
        ui.comdlg.fileName = chosen;
        titleupdate();
    });
}

void Zelvo::pushRecentSource() {
    SettingsStore& store = *services().settings;
    const QString section = QStringLiteral("MRUs");
    for (int i = 0; i <= 4; ++i) {
        const QString value = store.getSetting(document::kApp, section, QString::number(i + 1));
        store.saveSetting(document::kApp, section, QString::number(i), value);
    }
    store.saveSetting(document::kApp, section, QStringLiteral("5"), ui.comdlg.fileName);
    Tessara& tessara = forms().get<Tessara>();
    for (int i = 0; i <= 4; ++i) {
        if (store.getSetting(document::kApp, section, QString::number(i + 1)).isEmpty()) {
            tessara.ui.recent[std::size_t(i)]->setVisible(false);
            ui.recent[std::size_t(i)]->setVisible(false);
            continue;
        }
        // The list this routine fills was never made: the first filled entry
        // fails here, so no menu entry is ever captioned by it.
        throw RuntimeFailure::objectNotSet();
    }
}

void Zelvo::mnuExit() {
    document::exitProgram(
        services(), [this] { ui.areaView->setFocus(); }, document::tempCrashFile());
}

} // namespace zt
