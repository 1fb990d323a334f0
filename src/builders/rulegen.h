#pragma once

#include <QString>

namespace zt {

// What the rule dialog holds when it is accepted.
struct RuleValues {
    QString width{};
    bool percentage = false;
    QString size{};
    bool noShade = false;
    QString align = QStringLiteral("Center");
    QString colour{};
};

// `<HR{width}{align}{color}{size}{noshade}>`, no line break after. An empty field
// leaves its attribute out; "Center", the rule's own default, is never written.
QString ruleTag(const RuleValues& values);

} // namespace zt
