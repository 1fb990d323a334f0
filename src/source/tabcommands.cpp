#include "tabcommands.h"

#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

namespace zt {

namespace {

const QString kTab = QStringLiteral("\t");
const QString kLineBreak = QStringLiteral("\r\n");

} // namespace

void tabify(TextControl& area) {
    QString s = area.selText();
    // Read before the edit: a start beyond 32767 fails with the text unchanged.
    const qint16 start = vb::toInteger(area.selStart());
    s = vb::Replace(s, kLineBreak, kLineBreak + kTab);
    area.setSelText(kTab + s);
    area.setSelStart(start);
    area.setSelLength(int(s.size()) + 1);
}

void untabify(TextControl& area) {
    QString s = area.selText();
    const qint16 start = vb::toInteger(area.selStart());
    s = vb::Replace(s, kTab, QString());
    area.setSelText(s);
    area.setSelStart(start);
    area.setSelLength(int(s.size()));
}

} // namespace zt
