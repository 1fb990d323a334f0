#include "builderkit.h"

#include "builders/heading.h"
#include "builders/highlight.h"
#include "builders/rule.h"
#include "help/frmhelp.h"

#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Heading, FromTheSourceViewAroundTheSelection) {
    BuilderViews v;
    v.area().setText("<P>Intro</P>");
    v.selectInArea("Intro");
    v.run([&] { v.zelvo.mnuHeading(); });

    heading& dialog = v.program.forms->get<heading>();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.caption(), "Insert Heading : Zelvo");
    EXPECT_EQ(dialog.ui.compOrEdit.text(), "edit");
    EXPECT_EQ(dialog.ui.txtHeading.text(), "Intro");
    EXPECT_EQ(dialog.ui.txtHeadingView->text(), "Intro");
    EXPECT_TRUE(dialog.ui.radLevel1->isChecked());
    EXPECT_EQ(dialog.ui.listAlign->currentItem()->text(), "Left");

    dialog.ui.radLevel3->setChecked(true);
    dialog.ui.listAlign->setCurrentRow(1);
    v.run([&] { dialog.ui.OKButton->click(); });
    EXPECT_EQ(v.area().text(), R"(<P><H3 align="Center">Intro</H3></P>)");
    EXPECT_FALSE(v.loaded<heading>());
}

TEST(Heading, FromTheVisualViewPrefillsNothing) {
    BuilderViews v;
    v.area().setText("selected");
    v.selectInArea("selected");
    v.page().setSelection(0, 0);
    v.run([&] { v.tessara.mnuHeading(); });
    heading& dialog = v.program.forms->get<heading>();
    EXPECT_EQ(dialog.ui.compOrEdit.text(), "comp");
    EXPECT_EQ(dialog.ui.txtHeading.text(), "");
    v.run([&] { dialog.ui.OKButton->click(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), R"(<H1 align="Left"></H1>one two three)");
}

TEST(Highlight, FromTheSourceViewUpperCasesTheColour) {
    BuilderViews v;
    v.area().setText("a word here");
    v.selectInArea("word");
    v.run([&] { v.zelvo.mnuHighlight(); });

    highlight& dialog = v.program.forms->get<highlight>();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.caption(), "Highlight Text : Zelvo");
    EXPECT_EQ(dialog.ui.compOrEdit.text(), "edit");
    EXPECT_EQ(dialog.ui.txthighlight.text(), "word");
    v.program.pickers.colors = {0xFFFF00};
    v.run([&] { dialog.ui.openColor->click(); });
    EXPECT_EQ(dialog.ui.txtColour.text(), "#00FFFF");
    EXPECT_EQ(dialog.ui.txtColourView->backColor(), 0xFFFF00u);
    dialog.ui.txtColour.setText("#ff0000");
    v.run([&] { dialog.ui.OKButton->click(); });
    EXPECT_EQ(v.area().text(), R"(a <span style="background-color: #FF0000">word</span>  here)");
    EXPECT_FALSE(v.loaded<highlight>());
}

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

TEST(Highlight, TheVisualViewDoesNothingWithoutAColour) {
    const struct {
        const char* what;
        std::deque<std::optional<quint32>> picks;
        bool cancelError;
    } cases[] = {
        {"black", {0}, false},
        {"cancel on first use", {std::nullopt}, false},
        {"cancel failing after an earlier command set CancelError", {std::nullopt}, true},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.tessara.ui.ComDlg.cancelError = c.cancelError;
        v.page().selectText("two");
        v.program.pickers.colors = c.picks;
        v.run([&] { v.tessara.mnuHighlight(); });
        EXPECT_FALSE(v.tessara.ui.Timer1.enabled()) << c.what;
        EXPECT_EQ(v.page().bodyContent(), "one two three") << c.what;
        EXPECT_FALSE(v.loaded<highlight>()) << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
        EXPECT_TRUE(v.program.prompts.asked.empty()) << c.what;
    }
}

TEST(Highlight, TheVisualViewsPickerKeepsItsColourForALaterCancel) {
    BuilderViews v;
    v.program.pickers.colors = {0xFF0000, std::nullopt};
    v.page().selectText("one");
    v.run([&] { v.tessara.mnuHighlight(); });
    v.tick();
    v.page().selectText("three");
    v.run([&] { v.tessara.mnuHighlight(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              R"(<span style="background-color:#0000FF">one</span> &nbsp; two )"
              R"(<span style="background-color:#0000FF">three</span> &nbsp;)");
}

TEST(ElementDialogs, HelpButtonsShowTheirPages) {
    const struct {
        std::function<void(Views&)> open;
        std::function<QPushButton*(FormRegistry&)> help;
        QString firstLine;
    } cases[] = {
        {[](Views& v) { v.zelvo.mnuHR(); },
         [](FormRegistry& f) { return f.get<rule>().ui.btnHelp; }, "INSERT HORIZONTAL RULE"},
        {[](Views& v) { v.tessara.mnuHeading(); },
         [](FormRegistry& f) { return f.get<heading>().ui.btnHelp; }, "INSERT HEADING"},
        {[](Views& v) { v.zelvo.mnuHighlight(); },
         [](FormRegistry& f) { return f.get<highlight>().ui.btnHelp; }, "HIGHLIGHT TEXT"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.run([&] { c.open(v); });
        v.run([&] { c.help(*v.program.forms)->click(); });
        frmHelp& help = v.program.forms->get<frmHelp>();
        EXPECT_TRUE(help.isVisible()) << c.firstLine.toStdString();
        EXPECT_TRUE(help.ui.txtHelp.text().startsWith(c.firstLine)) << c.firstLine.toStdString();
    }
}
