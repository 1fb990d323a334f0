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

const struct {
    const char* menu;   // a menu item's name
    const char* key;    // or the tool tip of a key of Toolbar1
    const char* button; // or a button of the format bar
    DhtmlCommand id;
} kCommands[] = {
    {"mnuBold", nullptr, nullptr, DECMD_BOLD},
    {nullptr, "Bold", nullptr, DECMD_BOLD},
    {"mnuItalics", nullptr, nullptr, DECMD_ITALIC},
    {nullptr, "Italic", nullptr, DECMD_ITALIC},
    {"mnuUnderline", nullptr, nullptr, DECMD_UNDERLINE},
    {nullptr, "Underline", nullptr, DECMD_UNDERLINE},
    {"mnuFont", nullptr, nullptr, DECMD_FONT},
    {nullptr, nullptr, "btnFont", DECMD_FONT},
    {"mnuImage", nullptr, nullptr, DECMD_IMAGE},
    {nullptr, nullptr, "btnImage", DECMD_IMAGE},
    {"mnuBullets", nullptr, nullptr, DECMD_UNORDERLIST},
    {nullptr, nullptr, "btnBullets", DECMD_UNORDERLIST},
    {"mnuNumbering", nullptr, nullptr, DECMD_ORDERLIST},
    {nullptr, nullptr, "btnNumbering", DECMD_ORDERLIST},
    {"mnuIndent", nullptr, nullptr, DECMD_INDENT},
    {nullptr, nullptr, "btnOutdent", DECMD_INDENT},
    {"mnuOutdent", nullptr, nullptr, DECMD_OUTDENT},
    {nullptr, nullptr, "btnIndent", DECMD_OUTDENT},
    {"mnuAlignLeft", nullptr, nullptr, DECMD_JUSTIFYLEFT},
    {nullptr, "Align Left", nullptr, DECMD_JUSTIFYLEFT},
    {"mnuAlignCentre", nullptr, nullptr, DECMD_JUSTIFYCENTER},
    {nullptr, "Center", nullptr, DECMD_JUSTIFYCENTER},
    {"mnuAlignRight", nullptr, nullptr, DECMD_JUSTIFYRIGHT},
    {nullptr, "Align Right", nullptr, DECMD_JUSTIFYRIGHT},
    {"mnuRemFormat", nullptr, nullptr, DECMD_REMOVEFORMAT},
    {nullptr, nullptr, "remFormatting", DECMD_REMOVEFORMAT},
    {"mnuRemLink", nullptr, nullptr, DECMD_UNLINK},
    {"mnuFind", nullptr, nullptr, DECMD_FINDTEXT},
    {nullptr, "Find", nullptr, DECMD_FINDTEXT},
    {"mnuBringFront", nullptr, nullptr, DECMD_BRING_TO_FRONT},
    {"mnuBringForward", nullptr, nullptr, DECMD_BRING_FORWARD},
    {"mnuBringAbovetext", nullptr, nullptr, DECMD_BRING_ABOVE_TEXT},
    {"mnuSendBack", nullptr, nullptr, DECMD_SEND_TO_BACK},
    {"mnuSendBackward", nullptr, nullptr, DECMD_SEND_BACKWARD},
    {"mnuBelowtext", nullptr, nullptr, DECMD_SEND_BELOW_TEXT},
    {"mnuInsRow", nullptr, nullptr, DECMD_INSERTROW},
    {"mnuInsCol", nullptr, nullptr, DECMD_INSERTCOL},
    {"mnuInsCell", nullptr, nullptr, DECMD_INSERTCELL},
    {"mnuDelRow", nullptr, nullptr, DECMD_DELETEROWS},
    {"mnuDelCol", nullptr, nullptr, DECMD_DELETECOLS},
    {"mnuDelCel", nullptr, nullptr, DECMD_DELETECELLS},
    {"mnuMerge", nullptr, nullptr, DECMD_MERGECELLS},
    {"mnuSplit", nullptr, nullptr, DECMD_SPLITCELL},
    {"mnuSelectAll", nullptr, nullptr, DECMD_SELECTALL},
    {"mnuCopy", nullptr, nullptr, DECMD_COPY},
    {nullptr, "Copy", nullptr, DECMD_COPY},
    {"mnuCut", nullptr, nullptr, DECMD_CUT},
    {nullptr, "Cut", nullptr, DECMD_CUT},
    {"mnuPaste", nullptr, nullptr, DECMD_PASTE},
    {nullptr, "Paste", nullptr, DECMD_PASTE},
    {"mnuUndo", nullptr, nullptr, DECMD_UNDO},
    {nullptr, "Undo", nullptr, DECMD_UNDO},
    {"mnuRedo", nullptr, nullptr, DECMD_REDO},
    {nullptr, "Redo", nullptr, DECMD_REDO},
    {"mnuDelete", nullptr, nullptr, DECMD_DELETE},
    {nullptr, "Delete", nullptr, DECMD_DELETE},
};

void click(Views& v, const decltype(kCommands[0])& c) {
    if (c.menu)
        menuItem(v, c.menu)->trigger();
    else if (c.key)
        toolKey(v, c.key)->trigger();
    else
        v.tessara.window()->findChild<QToolButton*>(QLatin1String(c.button))->click();
}

TEST(VisualCommands, EachMenuKeyAndButtonRunsItsCommandOnThePage) {
    Views v;
    for (const auto& c : kCommands) {
        SCOPED_TRACE(c.menu ? c.menu : c.key ? c.key : c.button);
        page(v).setDocumentHTML(QLatin1String(kEverything));
        ASSERT_TRUE(page(v).selectText(QStringLiteral("cell")));
        // What Paste, Undo and Redo need.
        v.program.clipboard.setText(QStringLiteral("cell"));
        page(v).execCommand(DECMD_BOLD);
        if (c.id == DECMD_REDO)
            page(v).execCommand(DECMD_UNDO);
        const qsizetype before = page(v).executed().size();
        v.run([&] { click(v, c); });
        ASSERT_EQ(page(v).executed().size(), before + 1);
        EXPECT_EQ(page(v).executed().back(), c.id);
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
            v.run([&] { click(v, c); });
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
