#include "document.h"

#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/settingsstore.h"
#include "platform/textfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace zt::document {

QString blankPage() {
    return QStringList{
        QStringLiteral("<HTML>"),
        QStringLiteral("<HEAD>"),
        QStringLiteral(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"),
        QStringLiteral("<TITLE></TITLE>"),
        QStringLiteral("</HEAD>"),
        QStringLiteral("<BODY>"),
        QStringLiteral("<P>&nbsp;</P>"),
        QStringLiteral("</BODY>"),
        QStringLiteral("</HTML>"),
    }
        .join(QStringLiteral("\r\n"));
}

QString caption(const QString& star, const QString& path) {
    return QStringLiteral("Zelvo Tessara: By Orvek - (%1) %2").arg(star, path);
}

QString tempCrashFile() {
    return QDir::tempPath() + QStringLiteral("/ZlvTmpCrash.html");
}

bool acceptsFile(Services& services, const QString& path) {
    // The largest pages in use are a few megabytes. Far beyond that the source view
    // freezes for many seconds and the page engine may not answer in time at all.
    constexpr qint64 kLargest = 16 * 1024 * 1024;
    const QFileInfo file(path);
    QString refusal;
    if (file.isFile() && file.size() > kLargest)
        refusal = QStringLiteral("%1 is %2 MB, more than the %3 MB a page may have, so it was "
                                 "not opened.")
                      .arg(file.fileName())
                      .arg((file.size() + (1 << 20) - 1) >> 20)
                      .arg(kLargest >> 20);
    else if (textfiles::looksBinary(path))
        refusal =
            QStringLiteral("%1 is not a text file, so it was not opened.").arg(file.fileName());
    if (refusal.isEmpty())
        return true;
    services.prompts->msgBox(refusal, vbExclamation, kAssistant);
    return false;
}

bool askSaveFirst(Services& services) {
    return services.prompts->msgBox(
               QStringLiteral("File not saved. Would you like to save your file first?"),
               vbYesNo | vbQuestion, kAssistant) == vbYes;
}

void exitProgram(Services& services, const std::function<void()>& focusEditor,
                 const QString& crashFile) {
    const int answer = services.prompts->msgBox(QStringLiteral("Are you sure you want to exit?"),
                                                vbYesNo | vbQuestion | vbDefaultButton2,
                                                QStringLiteral("Confirm Exit: Zelvo Tessara"));
    if (answer == vbNo) {
        focusEditor();
        return;
    }
    orEndSilently([&] {
        if (!crashFile.isEmpty() && !QFile::remove(crashFile))
            throw RuntimeFailure::fileNotFound();
        services.settings->saveSetting(kApp, QStringLiteral("Crash"), QStringLiteral("crash"),
                                       QStringLiteral("0"));
    });
    Guard::endProcess();
}

} // namespace zt::document
