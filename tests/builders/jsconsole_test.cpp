#include "builderkit.h"

#include "pagehelpers/jsconsole.h"

#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

JSConsole::Ui& ui(BuilderViews& v) {
    return v.program.forms->get<JSConsole>().ui;
}

// Clicks the row of that text, as the user would.
void clickRow(BuilderViews& v, QListWidget* list, const QString& text) {
    const auto rows = list->findItems(text, Qt::MatchExactly);
    ASSERT_EQ(rows.size(), 1) << text.toStdString();
    list->setCurrentItem(rows.front());
    v.run([&] { emit list->itemClicked(rows.front()); });
}

// The console opened from the visual view and the element chosen; its dialog is then
// filled in, the last entry its accept button.
void buildElement(BuilderViews& v, const QString& item, const QString& dialog,
                  const QStringList& entries) {
    v.run([&] { v.tessara.mnuJavaScriptCons(); });
    clickRow(v, ui(v).theListOfItems, item);
    ASSERT_TRUE(shown(dialog)) << dialog.toStdString();
    v.run([&] { fillIn(shown(dialog), entries); });
    v.settle();
}

} // namespace

// Each element's dialog, opened for the console with the element's kind, leaves its
// tag open in the console's text, or its first `>` selected; the events then open and
// the elements stay closed.
TEST(JavaScriptConsole, EachElementsDialogLeavesItsTagOpenInTheCode) {
    const struct {
        QString item, dialog, entry, accept, code, selected = "";
    } cases[] = {
        {"Button", "formButton", "txtName=b", "btnInsert", R"(<INPUT type="button" name="b" )"},
        {"CheckBox", "formRadChk", "txtName=c", "btnInsert", R"(<INPUT type="checkbox" name="c" )"},
        {"File Upload", "formFile", "txtName=f", "btnInsert", R"(<INPUT type="file" name="f" )"},
        {"Form", "formForm", "txtName=f", "OKButton",
         R"(<body><form name="f" method="Get" action="" target="_self" ><input type="submit" name="submit"></form></body>)",
         ">"},
        {"Hyperlink", "hyperlinks", "txtLink=a.html", "OKButton",
         R"(<A rel="" href="a.html" ></A>)", ">"},
        {"Image", "frmImage", "txtSource=p.png", "btnInsert",
         R"(<IMG src="p.png" align="Left" Border="0" )"},
        {"Password", "formTextbox", "txtName=p", "btnInsert",
         R"(<INPUT type="password" name="p" )"},
        {"TextArea", "formTextArea", "txtName=t", "btnInsert",
         "<TEXTAREA name=\"t\" >\r\n\r\n</TEXTAREA>", ">"},
        {"TextBox", "formTextbox", "txtName=q", "btnInsert", R"(<INPUT type="text" name="q" )"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        buildElement(v, c.item, c.dialog, {c.entry, c.accept});
        const JSConsole::Ui& u = ui(v);
        EXPECT_EQ(u.theCode.text() + '|' + u.theCode.selText(), c.code + '|' + c.selected);
        EXPECT_TRUE(u.theListOfEvents->isEnabled() && !u.theListOfItems->isEnabled());
        EXPECT_EQ(v.page().bodyContent(), "one two three");
        EXPECT_TRUE(v.program.failures.empty()) << c.item.toStdString();
    }
}

// Handlers join the tag at the caret, their answers escaped, and each event takes one;
// an empty first answer writes nothing. OK closes the tag and puts it into the page.
TEST(JavaScriptConsole, HandlersJoinTheTagAndOKPutsItInThePage) {
    struct Step {
        QString event, action;
        std::deque<QString> answers;
    };
    const struct {
        std::vector<Step> steps;
        QString handlers;
    } cases[] = {
        {{{"click", "alert", {"it's"}}}, R"h(onclick="alert('it\\'s')" )h"},
        {{{"mouseOver", "open url", {R"(C:\x)"}}}, R"h(onmouseOver="window.location='C:\\x'" )h"},
        {{{"click", "prompt", {"Name?", ""}}, {"blur", "confirm", {R"(Say "yes")"}}},
         R"h(onclick="prompt('Name?')"onblur="confirm('Say \\"yes\\"')" )h"},
        {{{"focus", "prompt", {"a", "b"}}, {"mouseUp", "close window", {}}},
         R"h(onfocus="prompt('a','b')"onmouseUp="window.close()" )h"},
        {{{"click", "alert", {""}}, {"blur", "prompt", {""}}}, ""},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.page().selectText("two");
        buildElement(v, "Button", "formButton", {"txtName=b", "btnInsert"});
        for (const Step& step : c.steps) {
            v.program.prompts.inputs = step.answers;
            clickRow(v, ui(v).theListOfEvents, step.event);
            clickRow(v, ui(v).listToBeDone, step.action);
            const bool written = step.answers.empty() || !step.answers.front().isEmpty();
            EXPECT_EQ(ui(v).theListOfEvents->findItems(step.event, Qt::MatchExactly).isEmpty(),
                      written);
        }
        v.run([&] { ui(v).btnok->click(); });
        v.settle();
        v.tick();
        EXPECT_EQ(v.page().bodyContent(),
                  R"(one <INPUT type="button" name="b" )" + c.handlers + "> three");
        EXPECT_FALSE(v.loaded<JSConsole>());
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// A dialog cancelled leaves the elements closed until "Insert different"; an action
// with no event chosen writes a nameless handler and fails; OK with nothing built
// still inserts its `>`; Cancel inserts nothing.
TEST(JavaScriptConsole, OneElementAtATimeAndTheWaysOut) {
    BuilderViews v;
    buildElement(v, "Radio", "formRadChk", {"CancelButton"});
    EXPECT_TRUE(ui(v).theCode.text().isEmpty());
    EXPECT_FALSE(ui(v).theListOfItems->isEnabled() || ui(v).theListOfEvents->isEnabled());
    v.run([&] { ui(v).btnIns->click(); });
    EXPECT_TRUE(ui(v).theListOfItems->isEnabled());

    v.program.prompts.inputs = {"x"};
    clickRow(v, ui(v).listToBeDone, "alert");
    EXPECT_EQ(ui(v).theCode.text(), R"h(on="alert('x')" )h");
    EXPECT_EQ(failure(v.program), 5);

    ui(v).theCode.setText(QString());
    v.run([&] { ui(v).btnok->click(); });
    v.settle();
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), ">one two three");
    v.run([&] { v.tessara.mnuJavaScriptCons(); });
    ui(v).theCode.setText("<b ");
    v.run([&] { ui(v).btnCancel->click(); });
    v.settle();
    EXPECT_FALSE(v.loaded<JSConsole>() || v.tessara.ui.Timer1.enabled());
}
