#include "enginescripts.h"

#include <QFile>
#include <QJsonDocument>

namespace zt::enginescripts {

namespace {

QString resource(const QString& name) {
    QFile file(QStringLiteral(":/zt/engine/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("engine script %s is missing from the build", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

// All of our functions, each call defining them afresh: the page's world keeps
// nothing of ours between calls, and a page load cannot lose them. What a script
// keeps for later (the edit history, an overlay) it keeps on the window, which
// lives as long as the document. editing.js makes the table of commands that the
// scripts after it add to.
const QString& library() {
    static const QString text = [] {
        QString all;
        for (const char* name : {"serialize.js", "editing.js", "history.js", "formatting.js",
                                 "pagedialogs.js", "tables.js", "positioning.js", "dragging.js",
                                 "details.js", "design.js", "surface.js", "load.js"})
            all += resource(QString::fromLatin1(name)) + u'\n';
        return all;
    }();
    return text;
}

} // namespace

QString call(const char* function, const QJsonObject& args) {
    const QString json = QString::fromUtf8(QJsonDocument(args).toJson(QJsonDocument::Compact));
    return QStringLiteral("(function () {\n'use strict';\n") + library() +
           QStringLiteral("\nreturn %1(").arg(QLatin1String(function)) + json +
           QStringLiteral(");\n})()");
}

} // namespace zt::enginescripts
