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
// nothing of ours between calls, and a page load cannot lose them.
const QString& library() {
    static const QString text = resource(QStringLiteral("serialize.js")) + u'\n' +
                                resource(QStringLiteral("editing.js")) + u'\n' +
                                resource(QStringLiteral("load.js"));
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
