#include "document.h"

#include <QDir>
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

} // namespace zt::document
