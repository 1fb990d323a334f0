#include "areafixture.h"

#include "shell/views.h"
#include "source/casecommands.h"
#include "source/editcommands.h"
#include "source/surroundcommands.h"
#include "source/tabcommands.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

using Command = void (Zelvo::*)();

} // namespace

TEST(TextTransforms, SurroundsAndInsertionsLeaveTheCaretBehindWithNothingSelected) {
    struct Case {
        const char* name;
        Command command;
        QString text;
        int start;
        int length;
        QString after;
        int caret;
    };
    const Case cases[] = {
        {"Left", &Zelvo::mnuALeft, "axb", 1, 1, "a<P align=\"left\">x</P>b", 22},
        {"Center", &Zelvo::mnuACenter, "axb", 1, 1, "a<CENTER>x</CENTER>b", 19},
        {"Center, nothing selected", &Zelvo::mnuACenter, "", 0, 0, "<CENTER></CENTER>", 17},
        {"Right", &Zelvo::mnuARight, "axb", 1, 1, "a<P align=\"right\">x</P>b", 23},
        {"Justify", &Zelvo::mnuAJustify, "axb", 1, 1, "a<P align=\"justify\">x</P>b", 25},
        {"No Break", &Zelvo::mnuNoBreak, "axb", 1, 1, "a<NOBR>x</NOBR>b", 15},
        {"No Break twice", &Zelvo::mnuNoBreak, "a<NOBR>x</NOBR>b", 1, 14,
         "a<NOBR><NOBR>x</NOBR></NOBR>b", 28},
        {"Line Break", &Zelvo::mnuLineBreak, "axb", 1, 1, "a<BR>b", 5},
        {"Word Break", &Zelvo::mnuWordBreak, "axb", 1, 1, "a<WBR>b", 6},
        // The caret waits inside the paragraph, in front of its two line breaks.
        {"Paragraph", &Zelvo::mnuParagraph, "axb", 1, 1, "a<P align=\"left\">\r\n\r\n</P>b", 17},
        {"Paragraph, nothing selected", &Zelvo::mnuParagraph, "", 0, 0,
         "<P align=\"left\">\r\n\r\n</P>", 16},
    };
    Views v;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        v.area().setText(c.text);
        v.area().setSelStart(c.start);
        v.area().setSelLength(c.length);
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        EXPECT_EQ(v.area().text(), c.after);
        EXPECT_EQ(v.area().selStart(), c.caret);
        EXPECT_EQ(v.area().selLength(), 0);
    }
}

TEST(TextTransforms, CaseCommands) {
    struct Case {
        void (*command)(TextControl&);
        QString selected;
        QString after;
    };
    const Case cases[] = {
        {lowerCase, "\u00C0bC <B>", "\u00E0bc <b>"},
        {upperCase, "\u00E0bc <b>", "\u00C0BC <B>"},
        // Inverted Case never visits the last character.
        {invertedCase, "aB", "AB"},
        {invertedCase, "a", "a"},
        {invertedCase, "Hello wORLD", "hELLO WorlD"},
        {invertedCase, "\u00E9aB", "\u00E9AB"},
        {invertedCase, "", ""},
        // Title Case starts a word only behind a blank.
        {titleCase, "hello  wORLD", "Hello  World"},
        {titleCase, "one\r\ntwo\tthree-four five", "One\r\ntwo\tthree-four Five"},
        {titleCase, " lead", " Lead"},
        {titleCase, "x", "X"},
        {titleCase, "\u00E9clair a \u00E9lan", "\u00C9clair A \u00E9lan"},
        {titleCase, "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.selected.toStdString());
        Area a("[" + c.selected + "]", 1, int(c.selected.size()));
        c.command(a.control);
        EXPECT_EQ(a.control.text(), "[" + c.after + "]");
        EXPECT_EQ(a.control.selStart(), 1 + c.after.size());
        EXPECT_EQ(a.control.selLength(), 0);
        EXPECT_EQ(a.changes, 1);
    }
}

TEST(TextTransforms, TabifyAndUntabifyKeepTheResultSelected) {
    Area a("[one\r\ntwo]", 1, 8);
    tabify(a.control);
    EXPECT_EQ(a.control.text(), "[\tone\r\n\ttwo]");
    EXPECT_EQ(a.control.selText(), "\tone\r\n\ttwo");
    tabify(a.control);
    EXPECT_EQ(a.control.text(), "[\t\tone\r\n\t\ttwo]");
    EXPECT_EQ(a.control.selText(), "\t\tone\r\n\t\ttwo");
    untabify(a.control);
    EXPECT_EQ(a.control.text(), "[one\r\ntwo]");
    EXPECT_EQ(a.control.selText(), "one\r\ntwo");
    EXPECT_EQ(a.changes, 3);

    Area middle("\tone\tx\r\n\ttwo\t", 0, 13);
    untabify(middle.control);
    EXPECT_EQ(middle.control.text(), "onex\r\ntwo");
    EXPECT_EQ(middle.control.selText(), "onex\r\ntwo");

    Area empty("ab", 1, 0);
    tabify(empty.control);
    EXPECT_EQ(empty.control.text(), "a\tb");
    EXPECT_EQ(empty.control.selStart(), 1);
    EXPECT_EQ(empty.control.selText(), "\t");
}

TEST(TextTransforms, PositionsBeyond32767FailWhereTheyAreRead) {
    const QString long32800(32800, 'a');
    struct Case {
        const char* name;
        void (*command)(TextControl&);
        int start;
        int length;
        QString after;
    };
    const Case cases[] = {
        {"Tabify reads first", tabify, 32768, 1, long32800},
        {"Untabify reads first", untabify, 32768, 1, long32800},
        {"Select All of a long text", selectAll, 3, 2, long32800},
        // Paragraph reads its caret behind the opening tag, which stays.
        {"Paragraph", insertParagraph, 32760, 0,
         QString(32760, 'a') + "<P align=\"left\">" + QString(40, 'a')},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Area a(long32800, c.start, c.length);
        EXPECT_EQ(failureOf([&] { c.command(a.control); }), RuntimeFailure::Overflow);
        EXPECT_TRUE(a.control.text() == c.after);
    }
    Area selected(long32800, 3, 2);
    failureOf([&] { selectAll(selected.control); });
    EXPECT_EQ(selected.control.selStart(), 3);
    EXPECT_EQ(selected.control.selLength(), 2);
}

TEST(TextTransforms, SelectAllUpTo32767Characters) {
    for (const int length : {0, 5, 32767}) {
        SCOPED_TRACE(length);
        Area a(QString(length, 'x'), length / 2, length / 3);
        selectAll(a.control);
        EXPECT_EQ(a.control.selStart(), 0);
        EXPECT_EQ(a.control.selLength(), length);
        EXPECT_EQ(a.changes, 0);
    }
}

TEST(TextTransforms, ClipboardCommands) {
    struct Case {
        const char* name;
        void (*command)(TextControl&, Clipboard&);
        int start;
        int length;
        QString after;
        QString clipboardAfter;
        int changes;
    };
    const Case cases[] = {
        {"copy", copySelection, 1, 1, "abc", "b", 0},
        {"copy, nothing selected", copySelection, 1, 0, "abc", "old", 0},
        {"cut", cutSelection, 1, 1, "ac", "b", 1},
        // The copy is tested, the removal is not: an empty cut still counts as an edit.
        {"cut, nothing selected", cutSelection, 1, 0, "abc", "old", 1},
        {"paste", [](TextControl& t, Clipboard& c) { pasteClipboard(t, c); }, 1, 1, "aoldc", "old",
         1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        MemoryClipboard clipboard;
        clipboard.setText("old");
        Area a("abc", c.start, c.length);
        c.command(a.control, clipboard);
        EXPECT_EQ(a.control.text(), c.after);
        EXPECT_EQ(clipboard.text(), c.clipboardAfter);
        EXPECT_EQ(a.changes, c.changes);
    }

    MemoryClipboard empty;
    Area a("abc", 1, 1);
    pasteClipboard(a.control, empty);
    EXPECT_EQ(a.control.text(), "ac");
}

TEST(TextTransforms, TheMenuClipboardCommandsUseTheProgramsClipboard) {
    Views v;
    v.area().setText("one two");
    v.area().setSelStart(4);
    v.area().setSelLength(3);
    ASSERT_TRUE(v.run([&] { v.zelvo.mnuCut(); }));
    EXPECT_EQ(v.program.clipboard.text(), "two");
    v.area().setSelStart(0);
    ASSERT_TRUE(v.run([&] { v.zelvo.mnuPaste(); }));
    EXPECT_EQ(v.area().text(), "twoone ");
    v.area().setSelStart(3);
    v.area().setSelLength(3);
    ASSERT_TRUE(v.run([&] { v.zelvo.mnuCopy(); }));
    EXPECT_EQ(v.program.clipboard.text(), "one");
}

TEST(TextTransforms, TheChangeChainRunsOnlyWhereTheTextIsAssigned) {
    struct Case {
        const char* name;
        Command command;
        int length;
        QString star;
    };
    const Case cases[] = {
        {"Bold, nothing selected", &Zelvo::mnubold, 0, ""},
        {"Indent, nothing selected", &Zelvo::mnuIndent, 0, ""},
        {"Outdent on untagged text", &Zelvo::mnuOutdent, 3, ""},
        {"Copy", &Zelvo::mnuCopy, 3, ""},
        {"Select All", &Zelvo::mnuSelectAll, 0, ""},
        // The rest assign SelText even with nothing selected.
        {"Lower Case", &Zelvo::mnuLcase, 0, "*"},
        {"Upper Case", &Zelvo::mnuUcase, 0, "*"},
        {"Inverted Case", &Zelvo::mnuIcase, 0, "*"},
        {"Title Case", &Zelvo::mnuTitleCase, 0, "*"},
        {"Tabify", &Zelvo::mnuTabify, 0, "*"},
        {"Untabify", &Zelvo::mnuUntabify, 0, "*"},
        {"Justify", &Zelvo::mnuAJustify, 0, "*"},
        {"Word Break", &Zelvo::mnuWordBreak, 0, "*"},
        {"Paragraph", &Zelvo::mnuParagraph, 0, "*"},
        {"Cut", &Zelvo::mnuCut, 0, "*"},
        {"Paste", &Zelvo::mnuPaste, 0, "*"},
    };
    Views v;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        v.area().setText("abc def");
        v.area().setSelStart(2);
        v.area().setSelLength(c.length);
        v.zelvo.ui.star.setText("");
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        EXPECT_EQ(v.star(), c.star);
    }
}
