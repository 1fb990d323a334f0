#include "builderkit.h"

#include "builders/heading.h"
#include "builders/highlight.h"
#include "builders/rule.h"
#include "builders/table.h"
#include "help/frmhelp.h"
#include "shell/closing.h"

#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Rule, FromTheSourceViewReplacesTheSelectionOfTheMomentOfOK) {
    BuilderViews v;
    v.area().setText("one two three");
    v.selectInArea("one");
    v.run([&] { v.zelvo.mnuHR(); });

    rule& dialog = v.program.forms->get<rule>();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.caption(), "Insert Horizontal Rule : Zelvo");
    EXPECT_EQ(dialog.ui.compOrEdit.text(), "edit");
    EXPECT_TRUE(dialog.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    // The user goes on working in the view and selects other text.
    v.selectInArea("three");
    dialog.ui.txtWidth.setText("50");
    dialog.ui.chkPercentage->setChecked(true);
    dialog.ui.cmbAlign->setCurrentText("Right");
    dialog.ui.chkShade->setChecked(true);
    v.run([&] { dialog.ui.OKButton->click(); });

    EXPECT_EQ(v.area().text(), R"(one two <HR width="50%" align="Right" NOSHADE>)");
    EXPECT_EQ(v.area().selStart(), v.area().text().size());
    EXPECT_EQ(v.star(), "*") << "the area's Change chain ran";
    EXPECT_FALSE(v.loaded<rule>());
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(Rule, FromTheVisualViewGoesInAtTheCaretOnTheTick) {
    BuilderViews v;
    v.page().selectText("two");
    v.run([&] { v.tessara.mnuRule(); });
    rule& dialog = v.program.forms->get<rule>();
    EXPECT_EQ(dialog.ui.compOrEdit.text(), "comp");
    dialog.ui.txtSize.setText("3");
    dialog.ui.txtColour.setText("red");
    v.run([&] { dialog.ui.OKButton->click(); });

    EXPECT_FALSE(v.loaded<rule>());
    EXPECT_TRUE(v.tessara.ui.Timer1.enabled());
    EXPECT_EQ(v.page().bodyContent(), "one two three") << "nothing before the tick";
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), R"(one <HR color="red" size="3"> three)");
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());
    EXPECT_EQ(v.area().text(), "");
}

TEST(Rule, CancelAndTheKeysOfTheWindow) {
    const struct {
        const char* way;
        std::function<void(rule&)> press;
        QString area;
    } cases[] = {
        {"Cancel", [](rule& d) { d.ui.CancelButton->click(); }, "x"},
        {"Esc", [](rule& d) { press(d.ui.txtWidthView, Qt::Key_Escape); }, "x"},
        {"Enter", [](rule& d) { press(d.ui.txtWidthView, Qt::Key_Return); }, R"(<HR width="7">x)"},
        {"frame", [](rule& d) { d.window()->close(); }, "x"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("x");
        v.run([&] { v.zelvo.mnuHR(); });
        rule& dialog = v.program.forms->get<rule>();
        dialog.ui.txtWidth.setText("7");
        c.press(dialog);
        EXPECT_FALSE(v.loaded<rule>()) << c.way;
        EXPECT_EQ(v.area().text(), c.area) << c.way;
        EXPECT_TRUE(v.program.failures.empty()) << c.way;
    }
}

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
    EXPECT_EQ(v.program.prompts.asked[0].title, "Assistant: Zelvo");
    EXPECT_EQ(v.program.prompts.asked[0].style, vbExclamation);

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

        const std::string label = std::string("table ") +
                                  (c.tableRemember ? c.tableRemember : "never") +
                                  (c.ticked ? ", ticked" : ", clear");
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
    EXPECT_EQ(dialog->ui.txtWidth.text(), "");
    EXPECT_FALSE(dialog->ui.chkPercentage->isChecked());
    EXPECT_EQ(dialog->ui.txtSize.text(), "");
    EXPECT_FALSE(dialog->ui.chkShade->isChecked());
    EXPECT_EQ(dialog->ui.cmbAlign->currentText(), "Center");
    EXPECT_EQ(dialog->ui.txtColour.text(), "");
    EXPECT_FALSE(dialog->ui.chkRemember->isChecked());
    v.run([&] { dialog->ui.OKButton->click(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), "<HR>one two three");
}

TEST(Rule, ClosingAViewUnloadsTheDialogs) {
    BuilderViews v;
    v.run([&] { v.zelvo.mnuHR(); });
    v.run([&] { v.zelvo.mnuHeading(); });
    v.run([&] { v.zelvo.mnuHighlight(); });
    unloadDialogs(*v.program.forms);
    EXPECT_FALSE(v.loaded<rule>());
    EXPECT_FALSE(v.loaded<heading>());
    EXPECT_FALSE(v.loaded<highlight>());
}
