// The visual engine's character and block formatting, and its history: every edit,
// whatever made it, is one step that Undo takes back and Redo puts again.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "support/failureof.h"

#include <gtest/gtest.h>

namespace zt::test {
namespace {

class Formatting : public ::testing::Test {
protected:
    void SetUp() override {
        engine.setBrowseMode(false);
        EngineKit::pair(EngineKind::Web).clipboard.clear();
    }
    std::string body() { return bodyOf(engine); }
    void load(const char* body) { setBody(engine, body); }
    // What the user does in the page, as the browser's own editing does it.
    void userTypes(const char* text) {
        evaluate(engine, QStringLiteral("document.execCommand('insertText', false, '%1')")
                             .arg(QLatin1String(text)));
    }

    WebPageEngine& engine = EngineKit::web();
};

TEST_F(Formatting, EachCommandActsOnTheSelectionAndUndoTakesItBack) {
    const char* link = R"(<p>one <a href="x.html">two</a> three</p>)";
    const struct {
        const char *body, *select;
        DhtmlCommand id;
        const char* want;
    } cases[] = {
        {"<p>one two three</p>", "two", DECMD_BOLD, "<p>one <b>two</b> three</p>"},
        {"<p>one <b>two</b> three</p>", "two", DECMD_BOLD, "<p>one two three</p>"},
        {"<p>one two three</p>", "two", DECMD_ITALIC, "<p>one <i>two</i> three</p>"},
        {"<p>one two three</p>", "two", DECMD_UNDERLINE, "<p>one <u>two</u> three</p>"},
        {"<p>one <b><i>two</i></b> three</p>", "two", DECMD_REMOVEFORMAT, "<p>one two three</p>"},
        {link, "tw", DECMD_UNLINK, "<p>one two three</p>"},
        {"<p>one</p><p>two</p>", "two", DECMD_ORDERLIST, "<p>one</p><ol><li>two</li></ol>"},
        {"<p>one</p><p>two</p>", "two", DECMD_UNORDERLIST, "<p>one</p><ul><li>two</li></ul>"},
        {"<ul><li>one</li><li>two</li></ul>", "two", DECMD_UNORDERLIST, "<ul><li>one</li></ul>two"},
        {"<p>one</p><p>two</p>", "two", DECMD_INDENT,
         R"(<p>one</p><blockquote style="margin: 0px 0px 0px 40px; border: none; padding: 0px;">)"
         "<p>two</p></blockquote>"},
        {"<blockquote><p>two</p></blockquote>", "two", DECMD_OUTDENT, "<p>two</p>"},
        {"<p>one</p><p>two</p>", "two", DECMD_JUSTIFYCENTER,
         R"(<p>one</p><p style="text-align: center;">two</p>)"},
        {"<p>two</p>", "two", DECMD_JUSTIFYRIGHT, R"(<p style="text-align: right;">two</p>)"},
        {R"(<p align="center">two</p>)", "two", DECMD_JUSTIFYLEFT,
         R"(<p align="center" style="text-align: left;">two</p>)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.body);
        load(c.body);
        const std::string before = body();
        ASSERT_TRUE(engine.selectText(QString::fromUtf8(c.select)));
        engine.execCommand(c.id);
        EXPECT_EQ(body(), c.want);
        engine.execCommand(DECMD_UNDO);
        EXPECT_EQ(body(), before);
        engine.execCommand(DECMD_REDO);
        EXPECT_EQ(body(), c.want);
    }
}

TEST_F(Formatting, WithNothingToActOnEachCommandFailsAndChangesNothing) {
    const DhtmlCommand ids[] = {
        DECMD_BOLD,    DECMD_ITALIC,      DECMD_UNDERLINE,     DECMD_REMOVEFORMAT,
        DECMD_UNLINK,  DECMD_ORDERLIST,   DECMD_UNORDERLIST,   DECMD_INDENT,
        DECMD_OUTDENT, DECMD_JUSTIFYLEFT, DECMD_JUSTIFYCENTER, DECMD_JUSTIFYRIGHT,
        DECMD_UNDO,    DECMD_REDO,        DECMD_CUT,           DECMD_DELETE,
    };
    // A fresh page has no selection and no history.
    load("<p>one <a href=\"x.html\">two</a></p>");
    const std::string before = body();
    for (DhtmlCommand id : ids)
        EXPECT_EQ(failureOf([&] { engine.execCommand(id); }), 5) << int(id);
    // Unlink has nothing to remove where no link is.
    engine.selectText(QStringLiteral("one"));
    EXPECT_EQ(failureOf([&] { engine.execCommand(DECMD_UNLINK); }), 5);
    engine.setBrowseMode(true);
    for (DhtmlCommand id : ids)
        EXPECT_NE(failureOf([&] { engine.execCommand(id); }), 0) << int(id);
    engine.setBrowseMode(false);
    EXPECT_EQ(body(), before);
}

// Our own pastes, cuts and deletes, the browser's formatting and the user's typing
// all land in one history, in the order they happened.
TEST_F(Formatting, HistoryHoldsEveryKindOfEditInOrder) {
    auto& clipboard = EngineKit::pair(EngineKind::Web).clipboard;
    load("<p>abc def</p>");
    std::vector<std::string> states{body()};
    const std::function<void()> edits[] = {
        [&] {
            clipboard.setHtml(QStringLiteral(R"(<form name="f"><input name="t"></form>)"), {});
            engine.selectText(QStringLiteral("def"));
            engine.execCommand(DECMD_PASTE);
        },
        [&] { userTypes("XY"); },
        [&] {
            engine.selectText(QStringLiteral("abc"));
            engine.execCommand(DECMD_BOLD);
        },
        [&] { engine.execCommand(DECMD_CUT); },
        [&] {
            engine.selectText(QStringLiteral("XY"));
            engine.execCommand(DECMD_DELETE);
        },
    };
    for (const auto& edit : edits) {
        edit();
        states.push_back(body());
    }
    EXPECT_EQ(states[1], R"(<p>abc <form name="f"><input name="t"></form></p>)");
    for (size_t i = states.size() - 1; i > 0; --i) {
        engine.execCommand(DECMD_UNDO);
        EXPECT_EQ(body(), states[i - 1]) << i;
    }
    EXPECT_EQ(failureOf([&] { engine.execCommand(DECMD_UNDO); }), 5);
    for (size_t i = 1; i < states.size(); ++i) {
        engine.execCommand(DECMD_REDO);
        EXPECT_EQ(body(), states[i]) << i;
    }
    // The browser's undo key plays the same history, and a new edit ends the redo.
    evaluate(engine, QStringLiteral("document.dispatchEvent(new KeyboardEvent('keydown', "
                                    "{key: 'z', ctrlKey: true, bubbles: true}))"));
    EXPECT_EQ(body(), states[states.size() - 2]);
    userTypes("Q");
    EXPECT_EQ(failureOf([&] { engine.execCommand(DECMD_REDO); }), 5);
}

} // namespace
} // namespace zt::test
