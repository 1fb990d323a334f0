#include "tagnavigation.h"

#include "platform/runtimefailure.h"
#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

#include <QStringLiteral>

namespace zt {

using vb::toInteger;

void smartSelect(TextControl& area) {
    try {
        const int caret = area.selStart();
        if (caret < 1)
            return;
        // Both searches start at the character just before the caret.
        const qint16 opening = toInteger(vb::InStrRev(area.text(), QStringLiteral("<"), caret));
        const qint16 closing = toInteger(vb::InStr(caret, area.text(), QStringLiteral(">")));
        area.setSelStart(opening - 1);
        area.setSelLength(closing - opening + 1);
    } catch (const RuntimeFailure&) {
    }
}

namespace {

// The end of a tag's name from the 1-based start: the first blank or the first ">",
// whichever comes first, a missing blank not counting. gt keeps the ">" found.
qint16 nameEndFrom(const QString& text, int start, qint16& gt) {
    const qint16 blank = toInteger(vb::InStr(start, text, QStringLiteral(" ")));
    gt = toInteger(vb::InStr(start, text, QStringLiteral(">")));
    return blank != 0 && blank < gt ? blank : gt;
}

} // namespace

EndTag searchEndTag(TextControl& area, bool deleteTags) {
    const QString& text = area.text();
    // The 0-based start of the tag, used as a 1-based search start: the searches
    // begin one character before the tag's "<".
    const qint16 tagStart = toInteger(area.selStart());
    const int from = tagStart < 1 ? tagStart + 1 : tagStart;
    qint16 gt = 0;
    qint16 nameEnd = nameEndFrom(text, from, gt);
    // A blank just before the tag ends no name: look again from the "<".
    if (nameEnd <= tagStart)
        nameEnd = nameEndFrom(text, area.selStart() + 1, gt);
    const int nameLength = nameEnd - tagStart - 2;
    if (nameLength < 0)
        throw RuntimeFailure::invalidProcedureCall();
    const QString closing = QLatin1Char('/') + vb::Mid(text, tagStart + 2, nameLength);

    const int found =
        vb::InStr(from, vb::LCase(text), QLatin1Char('<') + vb::LCase(closing) + QLatin1Char('>')) -
        1;
    if (found < 1)
        return EndTag::NotFound;
    area.setSelStart(found);
    area.setSelLength(int(closing.size()) + 2);
    if (!deleteTags)
        return EndTag::Selected;
    // The closing tag goes first, so the opening tag's place still holds.
    area.setSelText({});
    area.setSelStart(tagStart);
    area.setSelLength(gt - tagStart);
    area.setSelText({});
    return EndTag::Deleted;
}

qint16 findFrom(const QString& text, const QString& what, int from, bool matchCase) {
    const int at =
        matchCase ? vb::InStr(from, text, what) : vb::InStr(from, vb::LCase(text), vb::LCase(what));
    return toInteger(qint64(at) - 1);
}

} // namespace zt
