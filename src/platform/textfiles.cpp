#include "textfiles.h"

#include "runtimefailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zt::textfiles {

namespace {

RuntimeFailure accessError() {
    return {75, QStringLiteral("Path/File access error")};
}

} // namespace

QString readAll(const QString& path) {
    if (path.isEmpty())
        throw RuntimeFailure(52, QStringLiteral("Bad file name or number"));
    QFile file(path);
    if (!file.exists())
        throw RuntimeFailure::fileNotFound();
    if (!file.open(QIODevice::ReadOnly))
        throw accessError();
    return QString::fromUtf8(file.readAll());
}

QStringList readLines(const QString& path) {
    const QString text = readAll(path);
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n'))
            continue;
        lines << text.mid(start, i - start);
        if (c == QLatin1Char('\r') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines << text.mid(start);
    return lines;
}

void write(const QString& path, const QString& text) {
    if (path.isEmpty())
        throw RuntimeFailure(52, QStringLiteral("Bad file name or number"));
    if (!QFileInfo(path).absoluteDir().exists())
        throw RuntimeFailure::pathNotFound();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw accessError();
    const QByteArray bytes = text.toUtf8();
    if (file.write(bytes) != bytes.size())
        throw accessError();
}

} // namespace zt::textfiles
