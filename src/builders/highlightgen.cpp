#include "highlightgen.h"

#include "platform/vbstrings.h"

namespace zt {

QString highlightSpan(const HighlightValues& values) {
    return QStringLiteral("<span style=\"background-color: ") + vb::UCase(values.colour) +
           QStringLiteral("\">") + values.text + QStringLiteral("</span> ");
}

QString visualHighlightSpan(const HighlightValues& values) {
    return QStringLiteral("<span style=\"background-color:") + values.colour +
           QStringLiteral("\">") + values.text + QStringLiteral("</span> &nbsp;");
}

} // namespace zt
