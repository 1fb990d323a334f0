// The table commands on the real engine: each changes the innermost table at the
// selection through its grid of slots, and refuses where it cannot apply.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "support/failureof.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

namespace zt::test {
namespace {

// The body as the engine writes it, without the tbody the parser puts into a table.
std::string body(PageEngine& engine) {
    return QString::fromStdString(bodyOf(engine))
        .remove(QLatin1String("<tbody>"))
        .remove(QLatin1String("</tbody>"))
        .toStdString();
}

// Selects from the start of the text from to the end of the text to; with to empty,
// puts the caret at the start of from.
void select(WebPageEngine& engine, const char* from, const char* to) {
    ASSERT_TRUE(engine.selectText(QString::fromLatin1(from))) << from;
    const QString extend = QStringLiteral(R"((() => {
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        for (let n = walker.nextNode(); n; n = walker.nextNode())
            if (n.data.includes('%1'))
                return getSelection().extend(n, n.data.indexOf('%1') + %2);
    })())");
    evaluate(engine, *to ? extend.arg(QLatin1String(to)).arg(qstrlen(to))
                         : QStringLiteral("getSelection().collapseToStart()"));
}

// A table written short: rows apart by '|', cells by blanks; '!' makes a header
// cell, ^n and >n after a cell span n rows and n columns, and _ is an empty cell.
std::string T(const std::string& rows) {
    static const std::regex form(R"(^(!?)(.*?)(?:\^(\d+))?(?:>(\d+))?$)");
    std::string html = "<table>";
    std::istringstream lines(rows);
    for (std::string line; std::getline(lines, line, '|');) {
        html += "<tr>";
        std::istringstream cells(line);
        for (std::string cell; cells >> cell;) {
            std::smatch m;
            std::regex_match(cell, m, form);
            const std::string tag = m.length(1) ? "th" : "td";
            html += "<" + tag + (m[3].matched ? " rowspan=\"" + m.str(3) + "\"" : "") +
                    (m[4].matched ? " colspan=\"" + m.str(4) + "\"" : "") + ">" +
                    (m.str(2) == "_" ? "&nbsp;" : m.str(2)) + "</" + tag + ">";
        }
        html += "</tr>";
    }
    return html + "</table>";
}

TEST(TableCommands, ChangeTheTableAtTheSelectionThroughItsGrid) {
    const std::string square = T("a b | c d"), para = "<p>p</p>";
    const struct {
        std::string body;
        const char *from, *to; // no to: a caret at from
        DhtmlCommand command;
        std::string want; // none: refused, the page as it was
    } cases[] = {
        {T("a^2 b c | d>2"), "d", "", DECMD_INSERTROW, T("a^3 b c | _>2 | d>2")},
        {T("!h | x"), "h", "", DECMD_INSERTROW, T("!_ | !h | x")},
        {T("a b | c"), "c", "", DECMD_INSERTROW, T("a b | _ _ | c")},
        {T("a>2 | b c^2 | d"), "c", "", DECMD_INSERTCOL, T("a>3 | b _^2 c^2 | d")},
        {T("!h !i | x"), "i", "", DECMD_INSERTCOL, T("!h !_ !i | x")},
        {T("o" + T("i")), "i", "", DECMD_INSERTCOL, T("o" + T("_ i"))},
        {square, "b", "", DECMD_INSERTCELL, T("a _ b | c d")},
        {square, "c", "", DECMD_DELETEROWS, T("a b")},
        {T("a b^3 | c | d"), "a", "", DECMD_DELETEROWS, T("c b^2 | d")},
        {T("a^3 b | c | d"), "b", "c", DECMD_DELETEROWS, T("a d")},
        {"<table><thead><tr><th>h</th></tr></thead><tr><td>x</td></tr></table>", "h", "",
         DECMD_DELETEROWS, T("x")},
        {para + T("a"), "a", "", DECMD_DELETEROWS, para},
        {T("a>2 | b c"), "c", "", DECMD_DELETECOLS, T("a | b")},
        {T("a b | c"), "c", "", DECMD_DELETECOLS, T("b")},
        {para + T("a b"), "a", "b", DECMD_DELETECOLS, para},
        {square, "b", "c", DECMD_DELETECELLS, T("a | d")},
        {T("a b^2 | !c"), "c", "", DECMD_DELETECELLS, T("a b")},
        {para + T("a"), "a", "", DECMD_DELETECELLS, para},
        {square, "a", "d", DECMD_MERGECELLS, T("abcd^2>2 | ")},
        {square, "c", "d", DECMD_MERGECELLS, T("a b | cd>2")},
        {T("a b | c>2"), "b", "c", DECMD_MERGECELLS, ""},
        {square, "a", "", DECMD_MERGECELLS, ""},
        {T("a^2>2 !b | c"), "a", "", DECMD_SPLITCELL, T("a _ !b | _ _ c")},
        {square, "a", "", DECMD_SPLITCELL, ""},
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
        SCOPED_TRACE(c.body + " at " + c.from + ", " + std::to_string(c.command));
        setBody(engine, c.body.c_str());
        select(engine, c.from, c.to);
        const std::string was = body(engine);
        EXPECT_EQ(failureOf([&] { engine.execCommand(c.command); }), c.want.empty() ? 5 : 0);
        EXPECT_EQ(body(engine), c.want.empty() ? was : c.want);
        EXPECT_TRUE(evaluate(engine, caretInACell).toBool());
        // Undo takes the whole change back, a table that went included.
        if (!c.want.empty()) {
            engine.execCommand(DECMD_UNDO);
            EXPECT_EQ(body(engine), was);
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
            select(engine, place, "");
            EXPECT_EQ(failureOf([&] { engine.execCommand(id); }), 5) << place << " " << id;
        }
    }
    EXPECT_EQ(body(engine), before);
}

} // namespace
} // namespace zt::test
