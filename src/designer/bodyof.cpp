#include "bodyof.h"

#include "platform/vbstrings.h"

namespace zt {

QString BodyOf(const QString& d) {
    const QString lower = vb::LCase(d);
    const qint16 start = vb::toInteger(vb::InStr(lower, QStringLiteral("<body>")) + 6);
    const qint16 end = vb::toInteger(vb::InStrRev(lower, QStringLiteral("</body>")));
    return vb::Mid(d, start, end - start);
}

} // namespace zt
