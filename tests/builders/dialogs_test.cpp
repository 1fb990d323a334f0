#include "builderkit.h"

#include "builders/heading.h"
#include "builders/highlight.h"
#include "builders/rule.h"
#include "help/frmhelp.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

using namespace zt;
using namespace zt::test;

// Each dialog from each view that opens it: its window, what it prefills, its help
// page, and its fragment where the caller said, the source view's at the selection
// of the moment of OK. The page starts as "one two three" with "two" selected.
TEST(ElementDialogs, FromEachViewTheFragmentGoesWhereTheCallerSaid) {
    const struct {
        const char* what;
        std::function<void(BuilderViews&)> open;
        std::function<ElementDialog&(BuilderViews&)> fill;
        QString caption, help, area, page;
    } cases[] = {
        {"rule from the source view", [](BuilderViews& v) { v.zelvo.mnuHR(); },
         [](BuilderViews& v) -> ElementDialog& {
             rule& d = v.program.forms->get<rule>();
             v.selectInArea("three");
             fillIn(d.window(), {"txtWidth=50", "chkPercentage", "cmbAlign=Right", "chkShade",
                                 "txtSize=3", "txtColour=red"});
             return d;
         },
         "Insert Horizontal Rule : Zelvo", "INSERT HORIZONTAL RULE",
         R"(one two <HR width="50%" align="Right" color="red" size="3" NOSHADE>)", "one two three"},
        {"heading from the source view", [](BuilderViews& v) { v.zelvo.mnuHeading(); },
         [](BuilderViews& v) -> ElementDialog& {
             heading& d = v.program.forms->get<heading>();
             EXPECT_EQ(d.ui.txtHeadingView->text(), "one");
             EXPECT_TRUE(d.ui.radLevel1->isChecked());
             EXPECT_EQ(d.ui.listAlign->currentItem()->text(), "Left");
             d.ui.radLevel3->setChecked(true);
             d.ui.listAlign->setCurrentRow(1);
             return v.program.forms->get<heading>();
         },
         "Insert Heading : Zelvo", "INSERT HEADING", R"(<H3 align="Center">one</H3> two three)",
         "one two three"},
        {"heading from the visual view", [](BuilderViews& v) { v.tessara.mnuHeading(); },
         [](BuilderViews& v) -> ElementDialog& {
             heading& d = v.program.forms->get<heading>();
             EXPECT_EQ(d.ui.txtHeading.text(), "");
             return d;
         },
         "Insert Heading : Zelvo", "INSERT HEADING", "one two three",
         R"(one <H1 align="Left"></H1> three)"},
        {"highlight from the source view", [](BuilderViews& v) { v.zelvo.mnuHighlight(); },
         [](BuilderViews& v) -> ElementDialog& {
             highlight& d = v.program.forms->get<highlight>();
             EXPECT_EQ(d.ui.txthighlight.text(), "one");
             // Black is nothing taken; a colour shows in the box too.
             v.program.pickers.colors = {0, 0xFFFF00};
             const quint32 before = d.ui.txtColourView->backColor();
             d.ui.txtColour.setText("typed");
             d.ui.openColor->click();
             EXPECT_EQ(d.ui.txtColour.text(), "typed");
             EXPECT_EQ(d.ui.txtColourView->backColor(), before);
             d.ui.openColor->click();
             EXPECT_EQ(d.ui.txtColour.text(), "#00FFFF");
             EXPECT_EQ(d.ui.txtColourView->backColor(), 0xFFFF00u);
             d.ui.txtColour.setText("#ff0000");
             return v.program.forms->get<highlight>();
         },
         "Highlight Text : Zelvo", "HIGHLIGHT TEXT",
         R"(<span style="background-color: #FF0000">one</span>  two three)", "one two three"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("one");
        v.page().selectText("two");
        v.run([&] { c.open(v); });
        ElementDialog& d = c.fill(v);
        const auto click = [&](const char* name) {
            v.run([&] { d.window()->findChild<QPushButton*>(name)->click(); });
        };
        EXPECT_TRUE(d.isVisible()) << c.what;
        EXPECT_EQ(d.caption(), c.caption) << c.what;
        EXPECT_TRUE(d.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << c.what;
        click("btnHelp");
        EXPECT_TRUE(v.program.forms->get<frmHelp>().ui.txtHelp.text().startsWith(c.help)) << c.what;

        click("OKButton");
        EXPECT_EQ(v.area().text(), c.area) << c.what;
        ASSERT_EQ(v.tessara.ui.Timer1.enabled(), c.page != "one two three") << c.what;
        if (v.tessara.ui.Timer1.enabled())
            v.tick();
        EXPECT_EQ(v.page().bodyContent(), c.page) << c.what;
        EXPECT_FALSE(v.loaded<rule>() || v.loaded<heading>() || v.loaded<highlight>()) << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
    }
}

TEST(ElementDialogs, CancelEscTheFrameAndEnter) {
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
