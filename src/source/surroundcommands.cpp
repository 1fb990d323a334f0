#include "surroundcommands.h"

#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

#include <QString>

#include <array>
#include <cstddef>

namespace zt {

namespace {

struct Pair {
    Surround key;
    const char16_t* opening;
    const char16_t* closing;
};

constexpr std::array<Pair, 5> kPairs{{
    {Surround::AlignLeft, u"<P align=\"left\">", u"</P>"},
    {Surround::Center, u"<CENTER>", u"</CENTER>"},
    {Surround::AlignRight, u"<P align=\"right\">", u"</P>"},
    {Surround::Justify, u"<P align=\"justify\">", u"</P>"},
    {Surround::NoBreak, u"<NOBR>", u"</NOBR>"},
}};

struct Single {
    Insertion key;
    const char16_t* text;
};

constexpr std::array<Single, 2> kSingles{{
    {Insertion::LineBreak, u"<BR>"},
    {Insertion::WordBreak, u"<WBR>"},
}};

template <class Row, std::size_t N> constexpr bool inKeyOrder(const std::array<Row, N>& rows) {
    for (std::size_t i = 0; i < N; ++i)
        if (static_cast<std::size_t>(rows[i].key) != i)
            return false;
    return true;
}
static_assert(inKeyOrder(kPairs) && inKeyOrder(kSingles), "the tables are looked up by key");

} // namespace

void surroundSelection(TextControl& area, Surround which) {
    const Pair& pair = kPairs[static_cast<std::size_t>(which)];
    area.setSelText(QString::fromUtf16(pair.opening) + area.selText() +
                    QString::fromUtf16(pair.closing));
}

void insertTag(TextControl& area, Insertion which) {
    area.setSelText(QString::fromUtf16(kSingles[static_cast<std::size_t>(which)].text));
}

void insertParagraph(TextControl& area) {
    area.setSelText(QStringLiteral("<P align=\"left\">"));
    // Read behind the opening tag, so a caret beyond 32767 fails with the tag already in.
    const qint16 caret = vb::toInteger(area.selStart());
    area.setSelText(QStringLiteral("\r\n\r\n</P>"));
    area.setSelStart(caret);
}

} // namespace zt
