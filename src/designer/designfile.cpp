#include "designfile.h"

#include "bodyof.h"

#include "platform/commondialog.h"
#include "platform/engine/pageengine.h"
#include "platform/guard.h"
#include "platform/runtimefailure.h"
#include "platform/textfiles.h"
#include "platform/vbstrings.h"

#include <QFileInfo>

namespace zt {

void writeDesignFile(const QString& path, const QString& text) {
    textfiles::write(path, text + QStringLiteral("\r\n"),
                     {.charset = QByteArrayLiteral("windows-1252")});
}

void saveDesign(PageEngine& work, CommonDialog& dialog, const QString& filter) {
    const QString body = BodyOf(work.documentHTML());
    dialog.fileName.clear();
    dialog.filter = filter;
    dialog.showSave();
    orEndSilently([&] {
        if (!dialog.fileName.isEmpty())
            writeDesignFile(dialog.fileName, body);
    });
}

void openDesign(PageEngine& work, CommonDialog& dialog, const QString& filter) {
    dialog.fileName.clear();
    dialog.filter = filter;
    dialog.showOpen();
    orEndSilently([&] {
        const QString path = dialog.fileName;
        if (path.isEmpty())
            return;
        const QFileInfo file(path);
        if (!file.isFile())
            throw RuntimeFailure::fileNotFound();
        vb::toInteger(file.size());
        work.setDocumentHTML(textfiles::read(path).text);
    });
}

} // namespace zt
