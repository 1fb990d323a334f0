#include "builderkit.h"

#include "builders/highlight.h"

using namespace zt;
using namespace zt::test;

// The selection as plain text, or with only a caret what the clipboard held before.
TEST(Highlight, TheVisualViewHighlightsTheCopiedPlainText) {
    const struct {
        int selStart, selLength;
        const char* body;
    } cases[] = {
        {6, 11, R"(Hello <span style="background-color:#FF0000">bold</span> &nbsp; world)"},
        {6, 0,
         R"(Hello <span style="background-color:#FF0000">old</span> &nbsp;<b>bold</b> world)"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.page().setDocumentHTML("<HTML><BODY>Hello <b>bold</b> world</BODY></HTML>");
        v.page().setSelection(c.selStart, c.selLength);
        v.program.clipboard.setText("old");
        v.program.pickers.colors = {255};
        v.run([&] { v.tessara.mnuHighlight(); });

        ASSERT_TRUE(v.loaded<highlight>());
        EXPECT_EQ(v.program.forms->get<highlight>().ui.compOrEdit.text(), "comp");
        EXPECT_FALSE(v.program.forms->get<highlight>().isVisible());
        v.tick();
        EXPECT_EQ(v.page().bodyContent(), c.body);
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// A cancelled picker is black on first use, and fails once an earlier command has
// set CancelError; either way nothing happens.
TEST(Highlight, TheVisualViewDoesNothingWithoutAColour) {
    for (const bool cancelError : {false, true}) {
        BuilderViews v;
        v.tessara.ui.ComDlg.cancelError = cancelError;
        v.page().selectText("two");
        v.program.pickers.colors = {std::nullopt};
        v.run([&] { v.tessara.mnuHighlight(); });
        EXPECT_FALSE(v.tessara.ui.Timer1.enabled()) << cancelError;
        EXPECT_FALSE(v.loaded<highlight>()) << cancelError;
        EXPECT_TRUE(v.program.failures.empty()) << cancelError;
        EXPECT_TRUE(v.program.prompts.asked.empty()) << cancelError;
    }
}

TEST(Highlight, TheVisualViewsPickerKeepsItsColourForALaterCancel) {
    BuilderViews v;
    v.program.pickers.colors = {255, std::nullopt};
    v.page().selectText("one");
    v.run([&] { v.tessara.mnuHighlight(); });
    v.tick();
    v.page().selectText("three");
    v.run([&] { v.tessara.mnuHighlight(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              R"(<span style="background-color:#FF0000">one</span> &nbsp; two )"
              R"(<span style="background-color:#FF0000">three</span> &nbsp;)");
}
