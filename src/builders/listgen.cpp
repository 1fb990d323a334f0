#include "listgen.h"

namespace zt {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString selectAttributes(const SelectValues& values) {
    QString attributes = QStringLiteral(" name=") + values.name;
    if (!values.size.isEmpty())
        attributes += QStringLiteral(" size=") + values.size;
    if (!values.tabIndex.isEmpty())
        attributes += QStringLiteral(" tabindex=\"%1\"").arg(values.tabIndex);
    if (values.multiple)
        attributes += QStringLiteral(" MULTIPLE");
    return attributes;
}

} // namespace

QString bulletList(const BulletValues& values) {
    const QString tag = values.kind == BulletValues::Bullets     ? QStringLiteral("UL")
                        : values.kind == BulletValues::Numbering ? QStringLiteral("OL")
                                                                 : QString();
    QString list = QStringLiteral("<%1 style=\"list-style-type: %2;\"").arg(tag, values.type);
    if (!values.start.isEmpty())
        list += QStringLiteral(" start=") + values.start;
    list += QStringLiteral(">") + kCrLf;
    const QStringList points = values.points.isEmpty() ? QStringList{"a"} : values.points;
    for (const QString& point : points)
        list += QStringLiteral("<LI>") + point + kCrLf;
    return list + QStringLiteral("</%1>").arg(tag);
}

QString selectList(const SelectValues& values, const QStringList& points) {
    QString list =
        QStringLiteral("<SELECT") + selectAttributes(values) + QStringLiteral(">") + kCrLf;
    for (const QString& point : points)
        list += QStringLiteral("<OPTION>") + point + kCrLf;
    return list + QStringLiteral("</SELECT>");
}

QString linkedList(const SelectValues& values, const QStringList& points, const QStringList& urls) {
    QString list = QStringLiteral("<body><form><SELECT") + selectAttributes(values) +
                   QStringLiteral(" onchange=\"location.href= (form.%1.options[form.%1."
                                  "selectedIndex].value)\">")
                       .arg(values.name) +
                   kCrLf;
    for (qsizetype i = 0; i < points.size(); ++i)
        list += QStringLiteral("<OPTION value=\"%1\">%2</OPTION>").arg(urls.value(i), points[i]) +
                kCrLf;
    return list + QStringLiteral("</SELECT></form></body>");
}

} // namespace zt
