#include "builderkit.h"

#include "builders/rule.h"
#include "builders/table.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

using namespace zt;
using namespace zt::test;

// Typed key by key: a number field refuses what is no number at the key that makes it
// so, and the alignment box keeps its text as typed, neither completed to a row nor
// corrected to a row's case when it loses the focus.
TEST(Rule, TypedFieldsAreCheckedOrKeptAsTyped) {
    for (const QString align : {"Cent", "center"}) {
        BuilderViews v;
        v.zelvo.show();
        v.run([&] { v.zelvo.mnuHR(); });
        rule& dialog = v.program.forms->get<rule>();
        QApplication::setActiveWindow(dialog.window());
        // An accepted key keeps the caret where it was, so typing goes on in order.
        type(dialog.ui.txtWidthView, "25");
        EXPECT_TRUE(v.program.prompts.asked.empty());
        // 1e3 is a number, but typed it is refused at "1e", and the 3 is all that is left.
        type(dialog.ui.txtSizeView, "1e3");
        EXPECT_EQ(dialog.ui.txtSizeView->text(), "3");
        EXPECT_EQ(v.asked(), QStringList{"Please enter only valid numerical data"});
        QLineEdit* edit = dialog.ui.cmbAlign->lineEdit();
        edit->setFocus();
        ASSERT_TRUE(edit->hasFocus());
        edit->clear();
        type(edit, align);
        dialog.ui.txtWidthView->setFocus();
        v.run([&] { dialog.ui.OKButton->click(); });
        EXPECT_EQ(v.area().text(), R"(<HR width="25" align=")" + align + R"(" size="3">)");
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
    }
}

TEST(Rule, RememberedValuesAreWrittenButNeverRestored) {
    BuilderViews v;
    v.run([&] { v.tessara.mnuRule(); });
    rule* dialog = &v.program.forms->get<rule>();
    fillIn(dialog->window(), {"txtWidth=75", "chkPercentage", "txtSize=5", "chkShade",
                              "cmbAlign=Left", "txtColour=#00FF00", "chkRemember"});
    v.run([&] { dialog->ui.OKButton->click(); });
    v.settle();
    EXPECT_EQ(v.area().text(), "") << "the visual view's dialog sends to the page";

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
