#include "builderkit.h"

#include "builders/highlight.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Highlight, TheVisualViewDoesNothingWithoutAColourOrASelection) {
    const struct {
        const char* what;
        std::deque<std::optional<quint32>> picks;
        bool cancelError;
        const char* selected;
        bool dialogTold;
    } cases[] = {
        {"black", {0}, false, "two", false},
        {"cancel on first use", {std::nullopt}, false, "two", false},
        {"cancel failing after an earlier command set CancelError",
         {std::nullopt},
         true,
         "two",
         false},
        {"nothing selected to copy", {255}, false, nullptr, true},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.tessara.ui.ComDlg.cancelError = c.cancelError;
        if (c.selected)
            v.page().selectText(c.selected);
        v.program.pickers.colors = c.picks;
        v.run([&] { v.tessara.mnuHighlight(); });
        EXPECT_FALSE(v.tessara.ui.Timer1.enabled()) << c.what;
        EXPECT_EQ(v.page().bodyContent(), "one two three") << c.what;
        EXPECT_EQ(v.loaded<highlight>(), c.dialogTold) << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
        EXPECT_TRUE(v.program.prompts.asked.empty()) << c.what;
    }
}

// The span holds the plain text of the selection; a later cancel of the picker takes
// the earlier colour again.
TEST(Highlight, TheVisualViewHighlightsThePlainTextAndKeepsItsColour) {
    BuilderViews v;
    v.page().setDocumentHTML("<HTML><BODY>Hello <b>bold</b> world</BODY></HTML>");
    v.program.pickers.colors = {255, std::nullopt};
    v.page().selectText("<b>bold</b>");
    v.run([&] { v.tessara.mnuHighlight(); });
    EXPECT_EQ(v.program.forms->get<highlight>().ui.compOrEdit.text(), "comp");
    EXPECT_FALSE(v.program.forms->get<highlight>().isVisible());
    v.tick();
    v.page().selectText("world");
    v.run([&] { v.tessara.mnuHighlight(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              R"(Hello <span style="background-color:#FF0000">bold</span> )"
              R"(&nbsp; <span style="background-color:#FF0000">world</span> &nbsp;)");
    EXPECT_TRUE(v.program.failures.empty());
}
