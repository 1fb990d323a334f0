#include "areafixture.h"

#include "shell/views.h"
#include "source/casecommands.h"
#include "source/editcommands.h"
#include "source/surroundcommands.h"
#include "source/tabcommands.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

using Command = void (Zelvo::*)();

TEST(TextTransforms, SurroundsAndInsertionsLeaveTheCaretBehindWithNothingSelected) {
    const std::pair<Command, QString> cases[] = {
        {&Zelvo::mnuALeft, "a<P align=\"left\">x</P>|b"},
        {&Zelvo::mnuACenter, "a<CENTER>x</CENTER>|b"},
        {&Zelvo::mnuARight, "a<P align=\"right\">x</P>|b"},
        {&Zelvo::mnuAJustify, "a<P align=\"justify\">x</P>|b"},
        {&Zelvo::mnuNoBreak, "a<NOBR>x</NOBR>|b"},
        {&Zelvo::mnuLineBreak, "a<BR>|b"},
        {&Zelvo::mnuWordBreak, "a<WBR>|b"},
        // The caret waits inside the paragraph, in front of its two line breaks.
        {&Zelvo::mnuParagraph, "a<P align=\"left\">|\r\n\r\n</P>b"},
    };
    Views v;
    for (const auto& [command, after] : cases) {
        put(v.area(), "a[x]b");
        ASSERT_TRUE(v.run([&] { (v.zelvo.*command)(); }));
        EXPECT_EQ(shown(v.area()), after);
    }
}

TEST(TextTransforms, CaseAndTabCommandsReplaceTheSelectionInOneChange) {
    struct Case {
        void (*command)(TextControl&);
        QString selected, after;
    };
    const Case cases[] = {
        {lowerCase, "\u00C0bC <B>", "\u00E0bc <b>|"},
        {upperCase, "\u00E0bc <b>", "\u00C0BC <B>|"},
        // Inverted Case never visits the last character.
        {invertedCase, "Hello wORLD", "hELLO WorlD|"},
        {invertedCase, "\u00E9aB", "\u00E9AB|"},
        {invertedCase, "", "|"},
        // Title Case starts a word only behind a blank.
        {titleCase, "hello  wORLD", "Hello  World|"},
        {titleCase, "one\r\ntwo\tthree-four five", "One\r\ntwo\tthree-four Five|"},
        {titleCase, " lead", " Lead|"},
        {titleCase, "\u00E9clair a \u00E9lan", "\u00C9clair A \u00E9lan|"},
        {titleCase, "", "|"},
        // The tab commands keep the result selected.
        {tabify, "one\r\ntwo", "[\tone\r\n\ttwo]"},
        {tabify, "", "[\t]"},
        {untabify, "\t\tone\r\n\t\ttwo", "[one\r\ntwo]"},
        {untabify, "\tone\tx\r\n\ttwo\t", "[onex\r\ntwo]"},
    };
    for (const Case& c : cases) {
        Area a("<[" + c.selected + "]>");
        c.command(a.control);
        EXPECT_EQ(shown(a.control), "<" + c.after + ">");
        EXPECT_EQ(a.changes, 1);
    }
}

TEST(TextTransforms, PositionsUpTo32767WorkAndBeyondFailWhereTheyAreRead) {
    const QString long32800(32800, 'a');
    struct Case {
        const char* name;
        void (*command)(TextControl&);
        int start, length;
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
        if (c.command == selectAll) {
            EXPECT_EQ(a.control.selStart(), 3);
            EXPECT_EQ(a.control.selLength(), 2);
        }
    }
    // Select All takes up to 32767 characters, quietly.
    for (const int length : {0, 5, 32767}) {
        Area a(QString(length, 'x'), length / 2, length / 3);
        selectAll(a.control);
        EXPECT_EQ(a.control.selStart(), 0) << length;
        EXPECT_EQ(a.control.selLength(), length);
        EXPECT_EQ(a.changes, 0);
    }
}

TEST(TextTransforms, TheChangeChainRunsOnlyWhereTheTextIsAssigned) {
    struct Case {
        const char* name;
        Command command;
        QString before, star;
        const char* clipboard = nullptr; // the program's clipboard after, where it matters
    };
    // The menus use the program's clipboard.
    const Case cases[] = {
        {"Outdent on untagged text", &Zelvo::mnuOutdent, "ab[c d]ef", ""},
        {"Copy", &Zelvo::mnuCopy, "ab[c d]ef", "", "c d"},
        {"Copy, nothing selected", &Zelvo::mnuCopy, "ab|c def", "", "c d"},
        {"Select All", &Zelvo::mnuSelectAll, "ab|c def", ""},
        // The rest assign SelText, most of them even with nothing selected.
        {"Lower Case", &Zelvo::mnuLcase, "ab|c def", "*"},
        {"Tabify", &Zelvo::mnuTabify, "ab|c def", "*"},
        {"Paragraph", &Zelvo::mnuParagraph, "ab|c def", "*"},
        // The copy is tested, the removal is not: an empty cut still counts as an edit.
        {"Cut, nothing selected", &Zelvo::mnuCut, "ab|c def", "*", "c d"},
        {"Cut", &Zelvo::mnuCut, "ab[c] def", "*", "c"},
        {"Paste", &Zelvo::mnuPaste, "ab|c def", "*", "c"},
    };
    Views v;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        put(v.area(), c.before);
        v.zelvo.ui.star.setText("");
        ASSERT_TRUE(v.run([&] { (v.zelvo.*c.command)(); }));
        EXPECT_EQ(v.star(), c.star);
        if (c.clipboard) {
            EXPECT_EQ(v.program.clipboard.text(), c.clipboard);
        }
    }
    EXPECT_EQ(v.area().text(), "abcc def") << "Paste put in what Cut took";
    v.program.clipboard.setText("");
    put(v.area(), "abc[c] def");
    v.run([&] { v.zelvo.mnuPaste(); });
    EXPECT_EQ(v.area().text(), "abc def") << "an empty clipboard takes the selection away";
}
