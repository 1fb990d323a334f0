#include "builderkit.h"

#include "pagehelpers/jsconsole.h"

#include "platform/engine/memoryengine.h"

#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

JSConsole& console(BuilderViews& v) {
    return v.program.forms->get<JSConsole>();
}

// Clicks the row of that text, as the user would.
void clickRow(BuilderViews& v, QListWidget* list, const QString& text) {
    const auto rows = list->findItems(text, Qt::MatchExactly);
    ASSERT_EQ(rows.size(), 1) << text.toStdString();
    list->setCurrentItem(rows.front());
    v.run([&] { emit list->itemClicked(rows.front()); });
}

bool stands(QListWidget* list, const QString& text) {
    return !list->findItems(text, Qt::MatchExactly).isEmpty();
}

// The console opened from the visual view, the element chosen and its dialog filled
// in and accepted.
void buildElement(BuilderViews& v, const QString& item, const QString& dialog,
                  const QStringList& entries) {
    v.run([&] { v.tessara.mnuJavaScriptCons(); });
    clickRow(v, console(v).ui.theListOfItems, item);
    QWidget* window = shown(dialog);
    ASSERT_TRUE(window) << dialog.toStdString();
    v.run([&] { fillIn(window, entries); });
    v.settle();
}

} // namespace

// Each element opens its dialog for the console, which leaves its tag open in the
// console's text; the events then open and the elements stay closed.
TEST(JavaScriptConsole, EachElementsDialogLeavesItsTagOpenInTheCode) {
    const struct {
        QString item, dialog;
        QStringList entries;
        QString code;
        int selLength = 0;
    } cases[] = {
        {"Button", "formButton", {"txtName=b", "btnInsert"}, R"(<INPUT type="button" name="b" )"},
        {"CheckBox",
         "formRadChk",
         {"txtName=c", "btnInsert"},
         R"(<INPUT type="checkbox" name="c" )"},
        {"File Upload", "formFile", {"txtName=f", "btnInsert"}, R"(<INPUT type="file" name="f" )"},
        {"Form",
         "formForm",
         {"txtName=f", "OKButton"},
         R"(<body><form name="f" method="Get" action="" target="_self" ><input type="submit" name="submit"></form></body>)",
         1},
        {"Hyperlink",
         "hyperlinks",
         {"txtLink=a.html", "txtTextToDisp=go", "OKButton"},
         R"(<A rel="" href="a.html" >go</A>)",
         1},
        {"Image",
         "frmImage",
         {"txtSource=p.png", "btnInsert"},
         R"(<IMG src="p.png" align="Left" Border="0" )"},
        {"Password",
         "formTextbox",
         {"txtName=p", "btnInsert"},
         R"(<INPUT type="password" name="p" )"},
        {"Radio", "formRadChk", {"txtName=r", "btnInsert"}, R"(<INPUT type="radio" name="r" )"},
        {"Reset", "formButton", {"txtName=r", "btnInsert"}, R"(<INPUT type="reset" name="r" )"},
        {"Submit", "formButton", {"txtName=s", "btnInsert"}, R"(<INPUT type="submit" name="s" )"},
        {"TextArea",
         "formTextArea",
         {"txtName=t", "btnInsert"},
         "<TEXTAREA name=\"t\" >\r\n\r\n</TEXTAREA>",
         1},
        {"TextBox", "formTextbox", {"txtName=q", "btnInsert"}, R"(<INPUT type="text" name="q" )"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        buildElement(v, c.item, c.dialog, c.entries);
        const JSConsole::Ui& ui = console(v).ui;
        const std::string what = c.item.toStdString();
        EXPECT_EQ(ui.theCode.text(), c.code) << what;
        EXPECT_EQ(ui.theCode.selLength(), c.selLength) << what;
        if (c.selLength)
            EXPECT_EQ(ui.theCode.selText(), ">") << what;
        EXPECT_TRUE(ui.theListOfEvents->isEnabled() && ui.theListOfEvents->count() > 1) << what;
        EXPECT_FALSE(ui.theListOfItems->isEnabled()) << what;
        EXPECT_EQ(v.page().bodyContent(), "one two three") << what;
        EXPECT_TRUE(v.program.failures.empty()) << what;
    }
}

// Handlers join the tag at the caret, their answers escaped, and each event takes one;
// OK closes the tag and puts it into the page at the caret.
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
        {{{"mouseOver", "open url", {R"h(C:\x)h"}}}, R"h(onmouseOver="window.location='C:\\x'" )h"},
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
        JSConsole::Ui& ui = console(v).ui;
        for (const Step& step : c.steps) {
            v.program.prompts.inputs = step.answers;
            clickRow(v, ui.theListOfEvents, step.event);
            clickRow(v, ui.listToBeDone, step.action);
            const bool written = step.answers.empty() || !step.answers.front().isEmpty();
            EXPECT_EQ(stands(ui.theListOfEvents, step.event), !written) << step.event.toStdString();
        }
        const QString tag = R"(<INPUT type="button" name="b" )" + c.handlers + ">";
        v.run([&] { ui.btnok->click(); });
        v.settle();
        EXPECT_FALSE(v.loaded<JSConsole>());
        v.tick();
        EXPECT_EQ(v.page().bodyContent(), "one " + tag + " three");
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// One element at a time: a dialog cancelled leaves the list closed until "Insert
// different"; an action with no event chosen writes a nameless handler and fails;
// OK with nothing built still inserts its `>`, and Cancel inserts nothing.
TEST(JavaScriptConsole, OneElementAtATimeAndTheWaysOut) {
    BuilderViews v;
    v.run([&] { v.tessara.mnuJavaScriptCons(); });
    JSConsole::Ui& ui = console(v).ui;
    EXPECT_TRUE(shown("JavaScript Console : Zelvo"));
    clickRow(v, ui.theListOfItems, "Radio");
    v.run([&] { fillIn(shown("formRadChk"), {"CancelButton"}); });
    EXPECT_TRUE(ui.theCode.text().isEmpty());
    EXPECT_FALSE(ui.theListOfItems->isEnabled() || ui.theListOfEvents->isEnabled());
    v.run([&] { ui.btnIns->click(); });
    EXPECT_TRUE(ui.theListOfItems->isEnabled());

    v.program.prompts.inputs = {"x"};
    clickRow(v, ui.listToBeDone, "alert");
    EXPECT_EQ(ui.theCode.text(), R"h(on="alert('x')" )h");
    EXPECT_EQ(failure(v.program), 5);

    ui.theCode.setText(QString());
    v.run([&] { ui.btnok->click(); });
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), ">one two three");
    v.settle();
    v.run([&] { v.tessara.mnuJavaScriptCons(); });
    console(v).ui.theCode.setText("<b ");
    v.run([&] { console(v).ui.btnCancel->click(); });
    v.settle();
    EXPECT_FALSE(v.loaded<JSConsole>() || v.tessara.ui.Timer1.enabled());
}
