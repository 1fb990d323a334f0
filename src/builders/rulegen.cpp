#include "rulegen.h"

namespace zt {

QString ruleTag(const RuleValues& values) {
    QString tag = QStringLiteral("<HR");
    if (!values.width.isEmpty())
        tag += QStringLiteral(" width=\"") + values.width +
               (values.percentage ? QStringLiteral("%") : QString()) + QStringLiteral("\"");
    if (values.align != QLatin1String("Center"))
        tag += QStringLiteral(" align=\"") + values.align + QStringLiteral("\"");
    if (!values.colour.isEmpty())
        tag += QStringLiteral(" color=\"") + values.colour + QStringLiteral("\"");
    if (!values.size.isEmpty())
        tag += QStringLiteral(" size=\"") + values.size + QStringLiteral("\"");
    if (values.noShade)
        tag += QStringLiteral(" NOSHADE");
    return tag + QStringLiteral(">");
}

} // namespace zt
