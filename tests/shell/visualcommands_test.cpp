// The visual view's editing commands, reached as the user reaches them: each is one
// command of the page, and one that does not apply says nothing.

#include "views.h"

#include "platform/engine/memoryengine.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

MemoryEngine& page(Views& v) {
    return static_cast<MemoryEngine&>(v.txtComp());
}

QAction* menuItem(Views& v, const char* name) {
    return v.tessara.window()->findChild<QAction*>(QLatin1String(name));
}

QAction* toolKey(Views& v, const char* tip) {
    for (QAction* action : v.tessara.ui.Toolbar1->actions()) {
        if (action->toolTip() == QLatin1String(tip))
            return action;
    }
    return nullptr;
}

// A page where every command applies: the caret's text stands in a cell of a table
// in a positioned box.
const char* const kEverything =
    "<HTML><BODY><div style=\"position: absolute\"><table><tr><td>cell</td></tr></table>"
    "</div></BODY></HTML>";

// Each command by its menu item, the tool tip of its key on Toolbar1, and its button
// on the format bar; the indent buttons are crossed.
const struct {
    DhtmlCommand id;
    const char *menu, *key, *button;
} kCommands[] = {
    {DECMD_BOLD, "mnuBold", "Bold", nullptr},
    {DECMD_ITALIC, "mnuItalics", "Italic", nullptr},
    {DECMD_UNDERLINE, "mnuUnderline", "Underline", nullptr},
    {DECMD_FONT, "mnuFont", nullptr, "btnFont"},
    {DECMD_IMAGE, "mnuImage", nullptr, "btnImage"},
    {DECMD_UNORDERLIST, "mnuBullets", nullptr, "btnBullets"},
    {DECMD_ORDERLIST, "mnuNumbering", nullptr, "btnNumbering"},
    {DECMD_INDENT, "mnuIndent", nullptr, "btnOutdent"},
    {DECMD_OUTDENT, "mnuOutdent", nullptr, "btnIndent"},
    {DECMD_JUSTIFYLEFT, "mnuAlignLeft", "Align Left", nullptr},
    {DECMD_JUSTIFYCENTER, "mnuAlignCentre", "Center", nullptr},
    {DECMD_JUSTIFYRIGHT, "mnuAlignRight", "Align Right", nullptr},
    {DECMD_REMOVEFORMAT, "mnuRemFormat", nullptr, "remFormatting"},
    {DECMD_UNLINK, "mnuRemLink", nullptr, nullptr},
    {DECMD_FINDTEXT, "mnuFind", "Find", nullptr},
    {DECMD_BRING_TO_FRONT, "mnuBringFront", nullptr, nullptr},
    {DECMD_BRING_FORWARD, "mnuBringForward", nullptr, nullptr},
    {DECMD_BRING_ABOVE_TEXT, "mnuBringAbovetext", nullptr, nullptr},
    {DECMD_SEND_TO_BACK, "mnuSendBack", nullptr, nullptr},
    {DECMD_SEND_BACKWARD, "mnuSendBackward", nullptr, nullptr},
    {DECMD_SEND_BELOW_TEXT, "mnuBelowtext", nullptr, nullptr},
    {DECMD_INSERTROW, "mnuInsRow", nullptr, nullptr},
    {DECMD_INSERTCOL, "mnuInsCol", nullptr, nullptr},
    {DECMD_INSERTCELL, "mnuInsCell", nullptr, nullptr},
    {DECMD_DELETEROWS, "mnuDelRow", nullptr, nullptr},
    {DECMD_DELETECOLS, "mnuDelCol", nullptr, nullptr},
    {DECMD_DELETECELLS, "mnuDelCel", nullptr, nullptr},
    {DECMD_MERGECELLS, "mnuMerge", nullptr, nullptr},
    {DECMD_SPLITCELL, "mnuSplit", nullptr, nullptr},
    {DECMD_SELECTALL, "mnuSelectAll", nullptr, nullptr},
    {DECMD_COPY, "mnuCopy", "Copy", nullptr},
    {DECMD_CUT, "mnuCut", "Cut", nullptr},
    {DECMD_PASTE, "mnuPaste", "Paste", nullptr},
    {DECMD_UNDO, "mnuUndo", "Undo", nullptr},
    {DECMD_REDO, "mnuRedo", "Redo", nullptr},
    {DECMD_DELETE, "mnuDelete", "Delete", nullptr},
};

// The ways the user reaches a command, the menu item first.
std::vector<std::function<void()>> waysTo(Views& v, const decltype(kCommands[0])& c) {
    std::vector<std::function<void()>> ways{[&v, &c] { menuItem(v, c.menu)->trigger(); }};
    if (c.key)
        ways.push_back([&v, &c] { toolKey(v, c.key)->trigger(); });
    if (c.button)
        ways.push_back([&v, &c] {
            v.tessara.window()->findChild<QToolButton*>(QLatin1String(c.button))->click();
        });
    return ways;
}

TEST(VisualCommands, EachMenuKeyAndButtonRunsItsCommandOnThePage) {
    Views v;
    for (const auto& c : kCommands) {
        SCOPED_TRACE(c.menu);
        const auto ways = waysTo(v, c);
        for (std::size_t way = 0; way < ways.size(); ++way) {
            page(v).setDocumentHTML(QLatin1String(kEverything));
            ASSERT_TRUE(page(v).selectText(QStringLiteral("cell")));
            // What Paste, Undo and Redo need.
            v.program.clipboard.setText(QStringLiteral("cell"));
            page(v).execCommand(DECMD_BOLD);
            if (c.id == DECMD_REDO)
                page(v).execCommand(DECMD_UNDO);
            const qsizetype before = page(v).executed().size();
            v.run(ways[way]);
            ASSERT_EQ(page(v).executed().size(), before + 1) << "way " << way;
            EXPECT_EQ(page(v).executed().back(), c.id) << "way " << way;
        }
    }
    EXPECT_TRUE(v.program.failures.empty());
    EXPECT_TRUE(v.program.prompts.asked.empty());
}

TEST(VisualCommands, ACommandThatDoesNotApplyDoesNothingAndSaysNothing) {
    Views v;
    // A fresh page has no selection, no history and nothing on the clipboard.
    page(v).setDocumentHTML(QStringLiteral("<HTML><BODY><p>text</p></BODY></HTML>"));
    const QString before = page(v).documentHTML();
    for (const auto& c : kCommands) {
        if (c.id != DECMD_SELECTALL && c.id != DECMD_COPY && c.id != DECMD_FINDTEXT)
            for (const auto& way : waysTo(v, c))
                v.run(way);
    }
    EXPECT_TRUE(page(v).executed().isEmpty());
    // With a selection, the table and z-order commands still have no table and no box.
    page(v).selectText(QStringLiteral("text"));
    for (const char* name : {"mnuInsRow", "mnuMerge", "mnuSplit", "mnuBringFront", "mnuBelowtext"})
        v.run([&] { menuItem(v, name)->trigger(); });
    EXPECT_TRUE(page(v).executed().isEmpty());
    EXPECT_EQ(page(v).documentHTML(), before);
    EXPECT_EQ(v.star(), "");
    EXPECT_TRUE(v.program.failures.empty());
    EXPECT_TRUE(v.program.prompts.asked.empty());
}

// Snap's mark and the page's setting run against each other; Show Details' mark and
// setting go together, with a caption that loses its access key.
TEST(VisualCommands, SnapAndShowDetailsMarks) {
    Views v;
    QAction* snap = v.tessara.ui.mnuSnap;
    QAction* details = v.tessara.ui.mnuShowDetails;
    std::string seen = std::to_string(snap->isChecked()) +
                       std::to_string(v.txtComp().snapToGrid()) + details->text().toStdString();
    for (int i = 0; i < 2; ++i) {
        v.run([&] { snap->trigger(); });
        v.run([&] { details->trigger(); });
        seen += " " + std::to_string(snap->isChecked()) + std::to_string(v.txtComp().snapToGrid()) +
                std::to_string(details->isChecked()) + std::to_string(v.txtComp().showDetails()) +
                details->text().toStdString();
    }
    EXPECT_EQ(seen, "10Show &Details 0111Hide Details 1000Show Details");
}

} // namespace
} // namespace zt::test
