#include "wrapcommands.h"

#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

#include <array>
#include <cstddef>

namespace zt {

namespace {

using enum WrapTest;

// clang-format off
constexpr std::array<WrapMember, 17> kMembers{{
    // key               test           opening          second         closing           searched          close open  add take
    {Wrap::Bold,         ExactSpelling, u"<B>",          u"<b>",        u"</B>",          u"</b>",          4,    3,   7,   7},
    {Wrap::Italics,      ExactSpelling, u"<I>",          u"<i>",        u"</I>",          u"</i>",          4,    3,   7,   7},
    {Wrap::Underline,    ExactSpelling, u"<U>",          u"<u>",        u"</U>",          u"</u>",          4,    3,   7,   7},
    {Wrap::Abbreviation, ExactSpelling, u"<ABBR>",       u"<abbr>",     u"</ABBR>",       u"</abbr>",       7,    6,  13,  13},
    {Wrap::Big,          ExactSpelling, u"<BIG>",        u"<big>",      u"</BIG>",        u"</big>",        6,    5,  12,  12},
    {Wrap::Code,         ExactSpelling, u"<CODE>",       u"<code>",     u"</CODE>",       u"</code>",       7,    6,  13,  13},
    {Wrap::Emphasis,     ExactSpelling, u"<EM>",         u"<em>",       u"</EM>",         u"</em>",         5,    4,   9,  12},
    {Wrap::Keyboard,     ExactSpelling, u"<KBD>",        u"<kbd>",      u"</KBD>",        u"</kbd>",        6,    5,  11,  11},
    {Wrap::Preformat,    ExactSpelling, u"<PRE>",        u"<pre>",      u"</PRE>",        u"</pre>",        6,    5,  11,  11},
    {Wrap::Quote,        ExactSpelling, u"<QUOTE>",      u"<quote>",    u"</QUOTE>",      u"</quote>",      8,    7,  15,  15},
    {Wrap::Small,        ExactSpelling, u"<SMALL>",      u"<small>",    u"</SMALL>",      u"</small>",      8,    7,  15,  15},
    {Wrap::Strong,       ExactSpelling, u"<STRONG>",     u"<strong>",   u"</STRONG>",     u"</strong>",     9,    8,  17,  17},
    {Wrap::Subscript,    ExactSpelling, u"<SUB>",        u"<sub>",      u"</SUB>",        u"</sub>",        6,    5,  11,  11},
    {Wrap::Superscript,  ExactSpelling, u"<SUP>",        u"<sup>",      u"</SUP>",        u"</sup>",        6,    5,  11,  11},
    {Wrap::Comment,      ExactSpelling, u"<!--",         u"",           u"-->",           u"-->",           3,    4,   7,   7},
    {Wrap::Indent,       AlwaysWrap,    u"<BLOCKQUOTE>", u"",           u"</BLOCKQUOTE>", u"",              0,    0,  25,   0},
    {Wrap::Outdent,      UnwrapAnyCase, u"<blockquote>", u"",           u"",              u"</blockquote>", 13,  12,   0,  25},
}};
// clang-format on

constexpr bool inKeyOrder() {
    for (std::size_t i = 0; i < kMembers.size(); ++i)
        if (static_cast<std::size_t>(kMembers[i].key) != i)
            return false;
    return true;
}
static_assert(inKeyOrder(), "the table is looked up by key");

bool startsTagged(const WrapMember& m, const QString& selected) {
    switch (m.test) {
    case ExactSpelling:
        return selected.startsWith(m.opening) ||
               (!m.secondSpelling.isEmpty() && selected.startsWith(m.secondSpelling));
    case UnwrapAnyCase:
        return vb::LCase(selected).startsWith(m.opening);
    case AlwaysWrap:
        break;
    }
    return false;
}

void focus(const std::function<void()>& giveFocus) {
    if (giveFocus)
        giveFocus();
}

void wrap(TextControl& area, const WrapMember& m, qint16 start, qint16 length,
          const std::function<void()>& giveFocus) {
    area.setSelText(m.opening.toString() + area.selText() + m.closing.toString());
    focus(giveFocus);
    area.setSelStart(start);
    // The sum is 16-bit as well: it overflows with the tags already in.
    area.setSelLength(vb::toInteger(qint64(length) + m.addedOnWrap));
}

void unwrap(TextControl& area, const WrapMember& m, qint16 start, qint16 length,
            const std::function<void()>& giveFocus) {
    // The 0-based start goes to the 1-based search unchanged, so the search begins one
    // character before the selection, and a selection at the very first character makes
    // the search fail. The lowered copy is the text as it was when the command began:
    // nothing has changed it yet.
    const int found = vb::InStr(start, vb::LCase(area.text()), m.closingSearched.toString());
    // Not found gives -1, which SelStart refuses. The closing tag goes first, so that
    // start still points at the opening tag.
    const qint16 closing = vb::toInteger(qint64(found) - 1);
    focus(giveFocus);
    area.setSelStart(closing);
    area.setSelLength(m.closingRemoved);
    area.setSelText(QString());
    area.setSelStart(start);
    area.setSelLength(m.openingRemoved);
    area.setSelText(QString());
    // A selection shorter than the number taken leaves a negative length, which
    // SelLength refuses after both tags have gone.
    area.setSelLength(vb::toInteger(qint64(length) - m.takenOnUnwrap));
}

} // namespace

const WrapMember& wrapMember(Wrap which) {
    return kMembers[static_cast<std::size_t>(which)];
}

void runWrap(TextControl& area, Wrap which, const std::function<void()>& giveFocus) {
    const WrapMember& m = wrapMember(which);
    const qint16 start = vb::toInteger(area.selStart());
    const qint16 length = vb::toInteger(area.selLength());
    if (area.selLength() == 0)
        return;
    const QString selected = area.selText();
    const bool tagged = startsTagged(m, selected);
    if (tagged)
        unwrap(area, m, start, length, giveFocus);
    else if (m.test != UnwrapAnyCase)
        wrap(area, m, start, length, giveFocus);
}

} // namespace zt
