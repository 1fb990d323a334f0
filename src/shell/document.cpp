#include "document.h"

#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/settingsstore.h"

#include <QDir>
#include <QFile>
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
