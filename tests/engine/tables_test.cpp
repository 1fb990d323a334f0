// The table commands on the real engine: each changes the innermost table at the
// selection through its grid of slots, and refuses where it cannot apply.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "support/failureof.h"

#include <gtest/gtest.h>

namespace zt::test {
namespace {

// The body as the engine writes it, without the tbody the parser puts into a table.
std::string body(PageEngine& engine) {
    QString page = engine.documentHTML();
    const qsizetype start = page.indexOf(QLatin1String("<BODY>")) + 6;
    page = page.mid(start, page.lastIndexOf(QLatin1String("</BODY>")) - start).trimmed();
    return page.remove(QLatin1String("<tbody>")).remove(QLatin1String("</tbody>")).toStdString();
}

// Selects from the start of the text from to the end of the text to; with no to,
// puts the caret at the start of from.
void select(WebPageEngine& engine, const char* from, const char* to) {
    const QString script = QStringLiteral(R"((() => {
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        const range = document.createRange();
        const take = () => (getSelection().removeAllRanges(), getSelection().addRange(range), true);
        let found = 0;
        for (let n = walker.nextNode(); n; n = walker.nextNode()) {
            if (!found && n.data.includes('%1'))
                range.setStart(n, n.data.indexOf('%1')), found = 1;
            if (found && '%2' && n.data.includes('%2'))
                return range.setEnd(n, n.data.indexOf('%2') + %3), take();
        }
        return found && !'%2' && (range.collapse(true), take());
    })())");
    const QString end = QString::fromLatin1(to ? to : "");
    ASSERT_TRUE(evaluate(engine, script.arg(QLatin1String(from), end).arg(end.size())).toBool())
        << from;
}

void setBody(WebPageEngine& engine, const char* body) {
    engine.setDocumentHTML(
        QStringLiteral("<HTML><HEAD></HEAD><BODY>%1</BODY></HTML>").arg(QLatin1String(body)));
}

#define TABLE(rows) "<table>" rows "</table>"
#define TR(cells) "<tr>" cells "</tr>"

TEST(TableCommands, ChangeTheTableAtTheSelectionThroughItsGrid) {
    const char* square = TABLE(TR("<td>a</td><td>b</td>") TR("<td>c</td><td>d</td>"));
    const char* ragged = TABLE(TR("<td>a</td><td>b</td>") TR("<td>c</td>"));
    const struct {
        const char *body, *from, *to; // no to: a caret
        DhtmlCommand command;
        const char* want; // none: refused, the page as it was
    } cases[] = {
        {square, "c", nullptr, DECMD_INSERTROW,
         TABLE(TR("<td>a</td><td>b</td>") TR("<td>&nbsp;</td><td>&nbsp;</td>")
                   TR("<td>c</td><td>d</td>"))},
        {TABLE(TR(R"(<td rowspan="2">a</td><td>b</td><td>c</td>)") TR(R"(<td colspan="2">d</td>)")),
         "d", nullptr, DECMD_INSERTROW,
         TABLE(TR(R"(<td rowspan="3">a</td><td>b</td><td>c</td>)")
                   TR(R"(<td colspan="2">&nbsp;</td>)") TR(R"(<td colspan="2">d</td>)"))},
        {TABLE(TR("<th>h</th>") TR("<td>x</td>")), "h", nullptr, DECMD_INSERTROW,
         TABLE(TR("<th>&nbsp;</th>") TR("<th>h</th>") TR("<td>x</td>"))},
        {ragged, "c", nullptr, DECMD_INSERTROW,
         TABLE(TR("<td>a</td><td>b</td>") TR("<td>&nbsp;</td><td>&nbsp;</td>") TR("<td>c</td>"))},
        {square, "b", nullptr, DECMD_INSERTCOL,
         TABLE(TR("<td>a</td><td>&nbsp;</td><td>b</td>")
                   TR("<td>c</td><td>&nbsp;</td><td>d</td>"))},
        {TABLE(TR(R"(<td colspan="2">a</td>)") TR(R"(<td>b</td><td rowspan="2">c</td>)")
                   TR("<td>d</td>")),
         "c", nullptr, DECMD_INSERTCOL,
         TABLE(TR(R"(<td colspan="3">a</td>)") TR(
             R"(<td>b</td><td rowspan="2">&nbsp;</td><td rowspan="2">c</td>)") TR("<td>d</td>"))},
        {TABLE(TR("<th>h</th><th>i</th>") TR("<td>x</td>")), "i", nullptr, DECMD_INSERTCOL,
         TABLE(TR("<th>h</th><th>&nbsp;</th><th>i</th>") TR("<td>x</td>"))},
        {square, "b", nullptr, DECMD_INSERTCELL,
         TABLE(TR("<td>a</td><td>&nbsp;</td><td>b</td>") TR("<td>c</td><td>d</td>"))},
        {TABLE(TR("<td>o" TABLE(TR("<td>i</td>")) "</td>")), "i", nullptr, DECMD_INSERTCOL,
         TABLE(TR("<td>o" TABLE(TR("<td>&nbsp;</td><td>i</td>")) "</td>"))},
        {square, "c", nullptr, DECMD_DELETEROWS, TABLE(TR("<td>a</td><td>b</td>"))},
        {TABLE(TR(R"(<td>a</td><td rowspan="3">b</td>)") TR("<td>c</td>") TR("<td>d</td>")), "a",
         nullptr, DECMD_DELETEROWS,
         TABLE(TR(R"(<td>c</td><td rowspan="2">b</td>)") TR("<td>d</td>"))},
        {TABLE(TR(R"(<td rowspan="3">a</td><td>b</td>)") TR("<td>c</td>") TR("<td>d</td>")), "b",
         "c", DECMD_DELETEROWS, TABLE(TR("<td>a</td><td>d</td>"))},
        {"<table><thead><tr><th>h</th></tr></thead><tr><td>x</td></tr></table>", "h", nullptr,
         DECMD_DELETEROWS, TABLE(TR("<td>x</td>"))},
        {"<p>p</p>" TABLE(TR("<td>a</td>")), "a", nullptr, DECMD_DELETEROWS, "<p>p</p>"},
        {square, "b", nullptr, DECMD_DELETECOLS, TABLE(TR("<td>a</td>") TR("<td>c</td>"))},
        {TABLE(TR(R"(<td colspan="2">a</td>)") TR("<td>b</td><td>c</td>")), "c", nullptr,
         DECMD_DELETECOLS, TABLE(TR("<td>a</td>") TR("<td>b</td>"))},
        {ragged, "c", nullptr, DECMD_DELETECOLS, TABLE(TR("<td>b</td>"))},
        {"<p>p</p>" TABLE(TR("<td>a</td><td>b</td>")), "a", "b", DECMD_DELETECOLS, "<p>p</p>"},
        {square, "b", "c", DECMD_DELETECELLS, TABLE(TR("<td>a</td>") TR("<td>d</td>"))},
        {TABLE(TR(R"(<td>a</td><td rowspan="2">b</td>)") TR("<th>c</th>")), "c", nullptr,
         DECMD_DELETECELLS, TABLE(TR("<td>a</td><td>b</td>"))},
        {"<p>p</p>" TABLE(TR("<td>a</td>")), "a", nullptr, DECMD_DELETECELLS, "<p>p</p>"},
        {square, "a", "d", DECMD_MERGECELLS,
         TABLE(TR(R"(<td rowspan="2" colspan="2">abcd</td>)") TR(""))},
        {square, "c", "d", DECMD_MERGECELLS,
         TABLE(TR("<td>a</td><td>b</td>") TR(R"(<td colspan="2">cd</td>)"))},
        {TABLE(TR("<td>a</td><td>b</td>") TR(R"(<td colspan="2">c</td>)")), "b", "c",
         DECMD_MERGECELLS, nullptr},
        {square, "a", nullptr, DECMD_MERGECELLS, nullptr},
        {TABLE(TR(R"(<td rowspan="2" colspan="2">a</td><th>b</th>)") TR("<td>c</td>")), "a",
         nullptr, DECMD_SPLITCELL,
         TABLE(TR("<td>a</td><td>&nbsp;</td><th>b</th>")
                   TR("<td>&nbsp;</td><td>&nbsp;</td><td>c</td>"))},
        {square, "a", nullptr, DECMD_SPLITCELL, nullptr},
    };
    // The caret stays in a cell, or in the page where the table went.
    const QString caretInACell = QStringLiteral(R"((() => {
        const node = getSelection().anchorNode;
        const at = node && (node.nodeType === Node.ELEMENT_NODE ? node : node.parentNode);
        return !!at && document.body.contains(at) &&
            (!document.querySelector('table') || !!at.closest('td, th'));
    })())");
    WebPageEngine& engine = EngineKit::web();
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.body) + " at " + c.from + ", " + std::to_string(c.command));
        setBody(engine, c.body);
        select(engine, c.from, c.to);
        const std::string before = body(engine);
        EXPECT_EQ(failureOf([&] { engine.execCommand(c.command); }), c.want ? 0 : 5);
        EXPECT_EQ(body(engine), c.want ? c.want : before);
        EXPECT_TRUE(evaluate(engine, caretInACell).toBool());
        // Undo takes the whole change back, a table that went included.
        if (c.want) {
            engine.execCommand(DECMD_UNDO);
            EXPECT_EQ(body(engine), before);
        }
    }
}

TEST(TableCommands, OutsideATableEveryCommandIsRefusedAndChangesNothing) {
    WebPageEngine& engine = EngineKit::web();
    setBody(engine, "<p>out</p><div>side<table><caption>cap</caption><tr><td>a<table><tr><td>b"
                    "</td></tr></table></td></tr></table></div>");
    const std::string before = body(engine);
    for (const char* place : {"out", "side", "cap"}) {
        for (DhtmlCommand id :
             {DECMD_INSERTROW, DECMD_INSERTCOL, DECMD_INSERTCELL, DECMD_DELETEROWS,
              DECMD_DELETECOLS, DECMD_DELETECELLS, DECMD_MERGECELLS, DECMD_SPLITCELL}) {
            select(engine, place, nullptr);
            EXPECT_EQ(failureOf([&] { engine.execCommand(id); }), 5) << place << " " << id;
        }
    }
    EXPECT_EQ(body(engine), before);
}

} // namespace
} // namespace zt::test
