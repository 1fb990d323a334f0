#include "imagegen.h"

namespace zt {

namespace {

QString attribute(const char* name, const QString& value) {
    return QLatin1Char(' ') + QLatin1String(name) + QStringLiteral("=\"") + value +
           QLatin1Char('"');
}

QString percentIf(bool percent) {
    return percent ? QStringLiteral("%") : QString();
}

} // namespace

QString imageTag(const ImageValues& values) {
    QString tag = QStringLiteral("<IMG") + attribute("src", values.source);
    if (!values.align.isEmpty())
        tag += attribute("align", values.align);
    if (!values.border.isEmpty())
        tag += attribute("Border", values.border);
    if (values.dimensions) {
        tag += attribute("height", values.height + percentIf(values.heightPercent));
        tag += attribute("width", values.width + percentIf(values.widthPercent));
    }
    if (!values.alt.isEmpty())
        tag += attribute("alt", values.alt);
    return tag + QLatin1Char('>');
}

} // namespace zt
