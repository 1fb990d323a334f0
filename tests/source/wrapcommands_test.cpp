#include "areafixture.h"

#include "shell/views.h"
#include "source/wrapcommands.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

using Command = void (Zelvo::*)();

struct MemberCase {
    Command command;
    QString wrapped, unwrapped = "ab [word] cd";
    Command undo = nullptr; // the command itself when none
};

// Every member's handler, on "word" selected in "ab word cd". The selections are the
// ones each command has always left, Big's extra character and Emphasis' short unwrap
// included.
const MemberCase kMembers[] = {
    {&Zelvo::mnubold, "ab [<B>word</B>] cd"},
    {&Zelvo::mnuitalics, "ab [<I>word</I>] cd"},
    {&Zelvo::mnuUnderline, "ab [<U>word</U>] cd"},
    {&Zelvo::mnuAbbreviation, "ab [<ABBR>word</ABBR>] cd"},
    {&Zelvo::mnuBig, "ab [<BIG>word</BIG> ]cd"},
    {&Zelvo::mnuCode, "ab [<CODE>word</CODE>] cd"},
    {&Zelvo::mnuEmphasis, "ab [<EM>word</EM>] cd", "ab [w]ord cd"},
    {&Zelvo::mnuKeyboard, "ab [<KBD>word</KBD>] cd"},
    {&Zelvo::mnuPreformat, "ab [<PRE>word</PRE>] cd"},
    {&Zelvo::mnuQuote, "ab [<QUOTE>word</QUOTE>] cd"},
    {&Zelvo::mnuSmall, "ab [<SMALL>word</SMALL>] cd"},
    {&Zelvo::mnuStrong, "ab [<STRONG>word</STRONG>] cd"},
    {&Zelvo::mnuSubscript, "ab [<SUB>word</SUB>] cd"},
    {&Zelvo::mnuSuperscript, "ab [<SUP>word</SUP>] cd"},
    {&Zelvo::mnuComment, "ab [<!--word-->] cd"},
    {&Zelvo::mnuIndent, "ab [<BLOCKQUOTE>word</BLOCKQUOTE>] cd", "ab [word] cd",
     &Zelvo::mnuOutdent},
};

} // namespace

TEST(WrapCommands, EachMemberWrapsAndUnwrapsWithItsOwnTagsAndLengthsButNeverAnEmptySelection) {
    Views v;
    int changes = 0;
    v.area().addChangeHandler([&] { ++changes; });
    for (const MemberCase& c : kMembers) {
        SCOPED_TRACE(c.wrapped.toStdString());
        const auto undo = [&] { (v.zelvo.*(c.undo ? c.undo : c.command))(); };
        put(v.area(), "ab |word cd");
        changes = 0;
        // With nothing selected neither way does anything.
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        ASSERT_TRUE(v.run(undo));
        EXPECT_EQ(changes, 0);

        v.area().setSelLength(4);
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        EXPECT_EQ(shown(v.area()), c.wrapped);
        EXPECT_EQ(changes, 1);

        // The second time the opening tag is in the lower spelling; the closing tag
        // is found in any case.
        for (const bool lower : {false, true}) {
            if (lower) {
                const int open = int(c.wrapped.indexOf("word"));
                put(v.area(),
                    c.wrapped.left(4) + c.wrapped.mid(4, open - 4).toLower() + c.wrapped.mid(open));
            }
            changes = 0;
            ASSERT_TRUE(v.run(undo));
            EXPECT_EQ(shown(v.area()), c.unwrapped) << lower;
            EXPECT_EQ(changes, 2) << "one Change per tag removed";
        }
    }
    EXPECT_TRUE(v.program.failures.empty());
}

// Which spellings count as tagged, and which closing tag an unwrap takes: the first
// at or behind the selection.
TEST(WrapCommands, OnlyTheExactSpellingsCountAndTheClosingTagIsTheFirstBehind) {
    struct Case {
        Wrap which;
        QString before, after;
    };
    const Case cases[] = {
        // Mixed case and attributes are not recognised: another pair goes round.
        {Wrap::Abbreviation, ".[<Abbr>x</Abbr>]", ".[<ABBR><Abbr>x</Abbr></ABBR>]"},
        // Indent never tests: each use adds a pair.
        {Wrap::Indent, ".[<BLOCKQUOTE>x</BLOCKQUOTE>]",
         ".[<BLOCKQUOTE><BLOCKQUOTE>x</BLOCKQUOTE></BLOCKQUOTE>]"},
        // Outdent takes any mixture of case, and always 25 from the length; a blank in
        // front of the tag means nothing to do.
        {Wrap::Outdent, " [<BlockQuote>wordy words</blockQUOTE>] T", " [wordy words] T"},
        {Wrap::Outdent, ".[ <blockquote>x</blockquote>]", ".[ <blockquote>x</blockquote>]"},
        {Wrap::Bold, "<B>one</B> [<B>two</B>]", "<B>one</B> [two]"},
        {Wrap::Bold, " [<B>a<B>b</B></B>]", " [a<B>b</B>]"},
        {Wrap::Bold, " [<B>word] and more</B>", " |word and more"},
        {Wrap::Bold, "</b> [<b>x</b>]", "</b> [x]"},
    };
    for (const Case& c : cases) {
        Area a(c.before);
        runWrap(a.control, c.which);
        EXPECT_EQ(shown(a.control), c.after);
    }
}

TEST(WrapCommands, FailuresComeAtTheirStepWithTheTextAsItStoodThen) {
    const QString a32761(32761, 'a');
    const QString pad(32762, '.');
    struct Case {
        const char* name;
        Wrap which;
        QString text;
        int start, length, failure;
        QString after;
    };
    const Case cases[] = {
        {"start above 32767", Wrap::Bold, QString(32800, 'a'), 32768, 1, RuntimeFailure::Overflow,
         QString(32800, 'a')},
        {"length above 32767", Wrap::Bold, QString(32800, 'a'), 0, 32768, RuntimeFailure::Overflow,
         QString(32800, 'a')},
        {"start at 32767 still works", Wrap::Italics, QString(32768, 'a'), 32767, 1, 0,
         QString(32767, 'a') + "<I>a</I>"},
        {"the new length overflows with the tags in", Wrap::Bold, a32761, 0, 32761,
         RuntimeFailure::Overflow, "<B>" + a32761 + "</B>"},
        {"unwrap at the first character: the search start is 0", Wrap::Bold, "<B>x</B>", 0, 8,
         RuntimeFailure::InvalidProcedureCall, "<B>x</B>"},
        {"no closing tag: SelStart refuses -1", Wrap::Bold, " <B>x", 1, 4,
         RuntimeFailure::InvalidPropertyValue, " <B>x"},
        {"closing tag at 32767 is in reach", Wrap::Bold, " <B>x" + pad + "</B>", 1, 4,
         RuntimeFailure::InvalidPropertyValue, " x" + pad},
        {"closing tag beyond 32767", Wrap::Bold, " <B>x." + pad + "</B>", 1, 4,
         RuntimeFailure::Overflow, " <B>x." + pad + "</B>"},
        {"selection shorter than the number taken", Wrap::Bold, " <B>x</B>", 1, 4,
         RuntimeFailure::InvalidPropertyValue, " x"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Area a(c.text, c.start, c.length);
        EXPECT_EQ(failureOf([&] { runWrap(a.control, c.which); }), c.failure);
        // Compared as a whole: a failure should not print 32 thousand characters.
        EXPECT_TRUE(a.control.text() == c.after);
    }
}

TEST(WrapCommands, AFailureReachesTheGuardAsTheRunTimeFailure) {
    Views v;
    put(v.area(), " [<EM>x</EM>] rest");
    v.zelvo.ui.star.setText("");
    EXPECT_FALSE(v.run([&] { v.zelvo.mnuEmphasis(); }));
    ASSERT_EQ(v.program.failures.size(), 1u);
    EXPECT_EQ(v.program.failures[0].number(), RuntimeFailure::InvalidPropertyValue);
    EXPECT_EQ(v.area().text(), " x rest");
    EXPECT_EQ(v.star(), "*") << "the Change chain ran inside the removals";
}
