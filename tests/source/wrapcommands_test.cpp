#include "areafixture.h"

#include "shell/views.h"
#include "source/wrapcommands.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

using Command = void (Zelvo::*)();

const QString kDoc = "ab word cd";

struct MemberCase {
    const char* name;
    Command command;
    QString wrapped;
    int wrappedLength, unwrappedLength;
    Command undo = nullptr; // the command itself when none
};

// Every member's handler, on "word" selected at 3 in kDoc. The lengths are the ones
// each command has always left, Big's extra character and Emphasis' short unwrap
// included.
const MemberCase kMembers[] = {
    {"Bold", &Zelvo::mnubold, "ab <B>word</B> cd", 11, 4},
    {"Italics", &Zelvo::mnuitalics, "ab <I>word</I> cd", 11, 4},
    {"Underline", &Zelvo::mnuUnderline, "ab <U>word</U> cd", 11, 4},
    {"Abbreviation", &Zelvo::mnuAbbreviation, "ab <ABBR>word</ABBR> cd", 17, 4},
    {"Big", &Zelvo::mnuBig, "ab <BIG>word</BIG> cd", 16, 4},
    {"Code", &Zelvo::mnuCode, "ab <CODE>word</CODE> cd", 17, 4},
    {"Emphasis", &Zelvo::mnuEmphasis, "ab <EM>word</EM> cd", 13, 1},
    {"Keyboard", &Zelvo::mnuKeyboard, "ab <KBD>word</KBD> cd", 15, 4},
    {"Preformat", &Zelvo::mnuPreformat, "ab <PRE>word</PRE> cd", 15, 4},
    {"Quote", &Zelvo::mnuQuote, "ab <QUOTE>word</QUOTE> cd", 19, 4},
    {"Small", &Zelvo::mnuSmall, "ab <SMALL>word</SMALL> cd", 19, 4},
    {"Strong", &Zelvo::mnuStrong, "ab <STRONG>word</STRONG> cd", 21, 4},
    {"Subscript", &Zelvo::mnuSubscript, "ab <SUB>word</SUB> cd", 15, 4},
    {"Superscript", &Zelvo::mnuSuperscript, "ab <SUP>word</SUP> cd", 15, 4},
    {"Comment", &Zelvo::mnuComment, "ab <!--word--> cd", 11, 4},
    {"Indent", &Zelvo::mnuIndent, "ab <BLOCKQUOTE>word</BLOCKQUOTE> cd", 29, 4, &Zelvo::mnuOutdent},
};

} // namespace

TEST(WrapCommands, EachMemberWrapsAndUnwrapsWithItsOwnTagsAndLengthsButNeverAnEmptySelection) {
    Views v;
    int changes = 0;
    v.area().addChangeHandler([&] { ++changes; });
    for (const MemberCase& c : kMembers) {
        SCOPED_TRACE(c.name);
        const auto undo = [&] { (v.zelvo.*(c.undo ? c.undo : c.command))(); };
        v.area().setText(kDoc);
        v.area().setSelStart(3);
        changes = 0;
        // With nothing selected neither way does anything.
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        ASSERT_TRUE(v.run(undo));
        EXPECT_EQ(changes, 0);

        v.area().setSelLength(4);
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        EXPECT_EQ(v.area().text(), c.wrapped);
        EXPECT_EQ(v.area().selStart(), 3);
        EXPECT_EQ(v.area().selLength(), c.wrappedLength);
        EXPECT_EQ(changes, 1);

        // The second time the opening tag is in the lower spelling; the closing tag
        // is found in any case.
        for (const bool lower : {false, true}) {
            if (lower) {
                const int open = int(c.wrapped.indexOf("word")) - 3;
                v.area().setText(c.wrapped.left(3) + c.wrapped.mid(3, open).toLower() +
                                 c.wrapped.mid(3 + open));
                v.area().setSelStart(3);
                v.area().setSelLength(c.wrappedLength);
            }
            changes = 0;
            ASSERT_TRUE(v.run(undo));
            EXPECT_EQ(v.area().text(), kDoc) << lower;
            EXPECT_EQ(v.area().selStart(), 3) << lower;
            EXPECT_EQ(v.area().selLength(), c.unwrappedLength) << lower;
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
        QString text;
        int start, length;
        QString after;
        int selectedAfter;
    };
    const Case cases[] = {
        // Mixed case and attributes are not recognised: another pair goes round.
        {Wrap::Abbreviation, ".<Abbr>x</Abbr>", 1, 14, ".<ABBR><Abbr>x</Abbr></ABBR>", 27},
        // Indent never tests: each use adds a pair.
        {Wrap::Indent, ".<BLOCKQUOTE>x</BLOCKQUOTE>", 1, 26,
         ".<BLOCKQUOTE><BLOCKQUOTE>x</BLOCKQUOTE></BLOCKQUOTE>", 51},
        // Outdent takes any mixture of case, and always 25 from the length; a blank in
        // front of the tag means nothing to do.
        {Wrap::Outdent, " <BlockQuote>wordy words</blockQUOTE> T", 1, 36, " wordy words T", 11},
        {Wrap::Outdent, ". <blockquote>x</blockquote>", 1, 27, ". <blockquote>x</blockquote>", 27},
        {Wrap::Bold, "<B>one</B> <B>two</B>", 11, 10, "<B>one</B> two", 3},
        {Wrap::Bold, " <B>a<B>b</B></B>", 1, 16, " a<B>b</B>", 9},
        {Wrap::Bold, " <B>word and more</B>", 1, 7, " word and more", 0},
        {Wrap::Bold, "</b> <b>x</b>", 5, 8, "</b> x", 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        Area a(c.text, c.start, c.length);
        runWrap(a.control, c.which);
        EXPECT_EQ(a.control.text(), c.after);
        EXPECT_EQ(a.control.selStart(), c.start);
        EXPECT_EQ(a.control.selLength(), c.selectedAfter);
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
    v.area().setText(" <EM>x</EM> rest");
    v.area().setSelStart(1);
    v.area().setSelLength(10);
    v.zelvo.ui.star.setText("");
    EXPECT_FALSE(v.run([&] { v.zelvo.mnuEmphasis(); }));
    ASSERT_EQ(v.program.failures.size(), 1u);
    EXPECT_EQ(v.program.failures[0].number(), RuntimeFailure::InvalidPropertyValue);
    EXPECT_EQ(v.area().text(), " x rest");
    EXPECT_EQ(v.star(), "*") << "the Change chain ran inside the removals";
}
