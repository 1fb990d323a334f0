#include "headinggen.h"

namespace zt {

QString headingTag(const HeadingValues& values) {
    const QString n = QString::number(values.level);
    return QStringLiteral("<H") + n + QStringLiteral(" align=\"") + values.align +
           QStringLiteral("\">") + values.text + QStringLiteral("</H") + n + QStringLiteral(">");
}

} // namespace zt
