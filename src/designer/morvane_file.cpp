// The designer's .mfd files: the body of the work area as one written line. The
// design's name is never kept: every Save asks again, and nothing marks a change.
#include "bodyof.h"
#include "morvane.h"

#include "platform/guard.h"
#include "platform/runtimefailure.h"
#include "platform/textfiles.h"
#include "platform/vbstrings.h"

#include <QFileInfo>

namespace zt {

namespace {

const QString kFilter = QStringLiteral("Morvane Form Files (*.mfd)|*.mfd");

} // namespace

void writeDesignFile(const QString& path, const QString& text) {
    textfiles::write(path, text + QStringLiteral("\r\n"),
                     {.charset = QByteArrayLiteral("windows-1252")});
}

// The length is held in 16 bits: a file above 32767 bytes fails before anything is
// read, and the failure, like any after the dialog, ends the command silently.
void morvane::mnuOpen() {
    ui.ComDlg.fileName.clear();
    ui.ComDlg.filter = kFilter;
    ui.ComDlg.showOpen();
    orEndSilently([&] {
        const QString path = ui.ComDlg.fileName;
        if (path.isEmpty())
            return;
        const QFileInfo file(path);
        if (!file.isFile())
            throw RuntimeFailure::fileNotFound();
        vb::toInteger(file.size());
        ui.Result->setDocumentHTML(textfiles::read(path).text);
    });
}

// The body is cut before the dialog, unprotected; the dialog asks nothing about an
// existing file, which is replaced.
void morvane::mnuSave() {
    const QString body = BodyOf(ui.Result->documentHTML());
    ui.ComDlg.fileName.clear();
    ui.ComDlg.filter = kFilter;
    ui.ComDlg.showSave();
    orEndSilently([&] {
        if (!ui.ComDlg.fileName.isEmpty())
            writeDesignFile(ui.ComDlg.fileName, body);
    });
}

} // namespace zt
