#include "builderkit.h"

#include "builders/highlight.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Highlight, TheVisualViewHighlightsThePlainTextOfTheSelection) {
    BuilderViews v;
    v.page().setDocumentHTML("<HTML><BODY>Hello <b>bold</b> world</BODY></HTML>");
    v.page().selectText("<b>bold</b>");
    v.program.pickers.colors = {255};
    v.run([&] { v.tessara.mnuHighlight(); });

    ASSERT_TRUE(v.loaded<highlight>());
    EXPECT_EQ(v.program.forms->get<highlight>().ui.compOrEdit.text(), "comp");
    EXPECT_FALSE(v.program.forms->get<highlight>().isVisible());
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              R"(Hello <span style="background-color:#FF0000">bold</span> &nbsp; world)");
    EXPECT_TRUE(v.program.failures.empty());
}

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
