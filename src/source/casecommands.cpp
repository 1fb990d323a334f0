#include "casecommands.h"

#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

namespace zt {

namespace {

bool isLowerAscii(QChar c) {
    return c.unicode() >= 97 && c.unicode() <= 122;
}

bool isUpperAscii(QChar c) {
    return c.unicode() >= 65 && c.unicode() <= 90;
}

} // namespace

void lowerCase(TextControl& area) {
    area.setSelText(vb::LCase(area.selText()));
}

void upperCase(TextControl& area) {
    area.setSelText(vb::UCase(area.selText()));
}

void invertedCase(TextControl& area) {
    QString s = area.selText();
    // The loop stops short of the last character; that is how the command has always
    // behaved, and it is kept.
    for (qsizetype i = 0; i + 1 < s.size(); ++i) {
        const QChar c = s.at(i);
        if (isLowerAscii(c))
            s[i] = QChar(c.unicode() - 32);
        else if (isUpperAscii(c))
            s[i] = QChar(c.unicode() + 32);
    }
    area.setSelText(s);
}

void titleCase(TextControl& area) {
    QString s = vb::LCase(area.selText());
    s = vb::UCase(s.left(1)) + s.mid(1);
    for (qsizetype i = 0; i + 1 < s.size(); ++i) {
        if (s.at(i) == QLatin1Char(' ') && isLowerAscii(s.at(i + 1)))
            s[i + 1] = QChar(s.at(i + 1).unicode() - 32);
    }
    area.setSelText(s);
}

} // namespace zt
