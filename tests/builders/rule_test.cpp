#include "builderkit.h"

#include "builders/rule.h"
#include "builders/table.h"

#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Rule, NumberFieldsRefuseWhatIsNoNumber) {
    BuilderViews v;
    v.run([&] { v.zelvo.mnuHR(); });
    rule& dialog = v.program.forms->get<rule>();

    // An accepted key keeps the caret where it was, so typing goes on in order.
    type(dialog.ui.txtWidthView, "25");
    EXPECT_EQ(dialog.ui.txtWidth.text(), "25");
    EXPECT_TRUE(v.program.prompts.asked.empty());

    // Every change is checked: 1e3 passes as a whole (pasted), but typed key by key
    // it is refused at "1e", and the 3 is all that is left.
    dialog.ui.txtWidth.setText("1e3");
    EXPECT_EQ(dialog.ui.txtWidthView->text(), "1e3");
    EXPECT_TRUE(v.program.prompts.asked.empty());
    type(dialog.ui.txtSizeView, "1e3");
    EXPECT_EQ(dialog.ui.txtSize.text(), "3");
    EXPECT_EQ(dialog.ui.txtSizeView->text(), "3");
    ASSERT_EQ(v.program.prompts.asked.size(), 1u);
    EXPECT_EQ(v.program.prompts.asked[0].text, "Please enter only valid numerical data");

    v.run([&] { dialog.ui.OKButton->click(); });
    EXPECT_EQ(v.area().text(), R"(<HR width="1e3" size="3">)");
}

TEST(Rule, ColourButton) {
    using Picks = std::deque<std::optional<quint32>>;
    const struct {
        const char* what;
        Picks picks;
        QString text;
        bool coloured;
    } cases[] = {
        {"black is nothing taken", {0}, "typed", false},
        {"cancel on first use", {std::nullopt}, "typed", false},
        {"red", {255}, "#FF0000", true},
        {"a cancel takes the earlier colour again", {0x00FF00, std::nullopt}, "#00FF00", true},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.run([&] { v.zelvo.mnuHR(); });
        rule& dialog = v.program.forms->get<rule>();
        const quint32 before = dialog.ui.txtColourView->backColor();
        v.program.pickers.colors = c.picks;
        for (std::size_t i = 0; i < c.picks.size(); ++i) {
            dialog.ui.txtColour.setText("typed");
            v.run([&] { dialog.ui.btnShowColours->click(); });
        }
        EXPECT_EQ(dialog.ui.txtColour.text(), c.text) << c.what;
        const quint32 last = c.picks.front().value_or(0);
        EXPECT_EQ(dialog.ui.txtColourView->backColor(), c.coloured ? last : before) << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
    }
}

// The box's own choice is stored only when it is ticked; when it is clear the
// value written comes from the table dialog's box, which its own load restores.
TEST(Rule, RememberSettingsTakesTheTableDialogsBoxWhenClear) {
    const struct {
        const char* tableRemember; // nullptr: never stored
        bool ticked;
        QString stored;
    } cases[] = {
        {nullptr, false, "0"}, {"0", false, "0"}, {"1", false, "1"},
        {"1", true, "1"},      {"0", true, "1"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        if (c.tableRemember)
            v.store("Table", "Remember", c.tableRemember);
        v.run([&] { v.zelvo.mnuHR(); });
        rule& dialog = v.program.forms->get<rule>();
        dialog.ui.chkRemember->setChecked(c.ticked);
        dialog.ui.txtWidth.setText("40");
        v.run([&] { dialog.ui.OKButton->click(); });

        const auto label = std::to_string(&c - cases);
        EXPECT_EQ(v.setting("HRule", "Remember"), c.stored) << label;
        EXPECT_EQ(v.setting("HRule", "Width"), c.ticked ? "40" : "(absent)") << label;
        EXPECT_EQ(v.loaded<table>(), !c.ticked) << label;
        EXPECT_EQ(v.area().text(), R"(<HR width="40">)");
    }
}

TEST(Rule, RememberedValuesAreWrittenButNeverRestored) {
    BuilderViews v;
    v.run([&] { v.tessara.mnuRule(); });
    rule* dialog = &v.program.forms->get<rule>();
    dialog->ui.txtWidth.setText("75");
    dialog->ui.chkPercentage->setChecked(true);
    dialog->ui.txtSize.setText("5");
    dialog->ui.chkShade->setChecked(true);
    dialog->ui.cmbAlign->setCurrentText("Left");
    dialog->ui.txtColour.setText("#00FF00");
    dialog->ui.chkRemember->setChecked(true);
    v.run([&] { dialog->ui.OKButton->click(); });
    v.settle();

    const std::pair<const char*, const char*> keys[] = {
        {"Remember", "1"}, {"NoShade", "1"},    {"Alignment", "Left"}, {"Colour", "#00FF00"},
        {"Size", "5"},     {"Percentage", "1"}, {"Width", "75"},
    };
    for (const auto& [key, value] : keys)
        EXPECT_EQ(v.setting("HRule", key), value) << key;

    // Opened without being told, it has no caller, and its test sends to the page.
    // Its fragment replaces the first one, still waiting for the tick.
    dialog = &v.program.forms->get<rule>();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->ui.compOrEdit.text(), "");
    v.run([&] { dialog->ui.OKButton->click(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), "<HR>one two three") << "all fields at their defaults";
}
