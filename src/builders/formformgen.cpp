#include "formformgen.h"

#include "protocol.h"

namespace zt {

QString formElement(const FormValues& values, const QString& callerMode) {
    const QString attributes = QStringLiteral(R"( name="%1" method="%2" action="%3" target="%4")")
                                   .arg(values.name, values.method, values.action, values.target);
    const QString close =
        callerMode == caller::kConsole ? QStringLiteral(" >") : QStringLiteral(">");
    const QString whole = QStringLiteral("<body><form") + attributes + close +
                          QStringLiteral(R"(<input type="submit" name="submit"></form></body>)");
    if (callerMode == caller::kEdit)
        return whole.mid(6, whole.size() - 13);
    return whole;
}

} // namespace zt
