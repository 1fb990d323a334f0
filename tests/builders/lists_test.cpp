#include "builderkit.h"

#include "builders/bullets.h"
#include "builders/formform.h"
#include "builders/formformgen.h"
#include "builders/formlist.h"
#include "builders/listgen.h"
#include "builders/listurls.h"
#include "help/frmhelp.h"
#include "pagehelpers/jsconsole.h"

#include "platform/textlineview.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(ListGenerators, ListsAndFormsFromTheirValues) {
    using B = BulletValues;
    const SelectValues all{.name = "l", .size = "3", .tabIndex = "2", .multiple = true};
    const FormValues form{.name = "f", .action = "a.cgi"};
    const QString onchange =
        R"~( onchange="location.href= (form.go.options[form.go.selectedIndex].value)">)~";
    const struct {
        QString made, want;
    } cases[] = {
        {bulletList({.kind = B::Bullets, .type = "disc", .points = {"A", "B"}}),
         "<UL style=\"list-style-type: disc;\">\r\n<LI>A\r\n<LI>B\r\n</UL>"},
        {bulletList({.kind = B::Numbering, .type = "decimal", .start = "3"}),
         "<OL style=\"list-style-type: decimal;\" start=3>\r\n<LI>a\r\n</OL>"},
        {bulletList({.type = "x", .start = "1", .points = {""}}),
         "< style=\"list-style-type: x;\" start=1>\r\n<LI>\r\n</>"},
        {selectList({.name = "l"}, {"A", "B"}),
         "<SELECT name=l>\r\n<OPTION>A\r\n<OPTION>B\r\n</SELECT>"},
        {selectList(all, {}), "<SELECT name=l size=3 tabindex=\"2\" MULTIPLE>\r\n</SELECT>"},
        {linkedList({.name = "go"}, {"Home", "Us"}, {"index.html", "us.html"}),
         "<body><form><SELECT name=go" + onchange +
             "\r\n<OPTION value=\"index.html\">Home</OPTION>\r\n<OPTION "
             "value=\"us.html\">Us</OPTION>\r\n</SELECT></form></body>"},
        {linkedList({.name = "go", .size = "1", .tabIndex = "4", .multiple = true}, {}, {}),
         R"(<body><form><SELECT name=go size=1 tabindex="4" MULTIPLE)" + onchange +
             "\r\n</SELECT></form></body>"},
        {formElement({.name = "f"}, "edit"),
         R"(<form name="f" method="Get" action="" target="_self"><input type="submit" name="submit"></form>)"},
        {formElement(form, "comp"),
         R"(<body><form name="f" method="Get" action="a.cgi" target="_self"><input type="submit" name="submit"></form></body>)"},
        {formElement({.name = "f", .method = "Post", .target = ""}, "jsc"),
         R"(<body><form name="f" method="Post" action="" target="" ><input type="submit" name="submit"></form></body>)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.made, c.want);
}

namespace {

void click(BuilderViews& v, QAbstractButton* button) {
    v.run([&] { button->click(); });
}

const QString kNoPoint = "No point selected to remove|Assistant: Zelvo|48";
const QString kNoLinkedPoint =
    "No point selected to remove. Please click on a point in the options list|Assistant: Zelvo|48";
const QString kNoUrl = "Valid URL was not entered|Assistant: Zelvo|48";
const QString kAskUrl =
    "Enter the url/location to which the point has to be linked to|Enter address/URL|0";
const QString kClear = "Are you sure you wish to clear the list?|Assistant: Zelvo|";

} // namespace

// Edits as words: +X adds X by the button, >X types X and presses Enter, #n selects
// row n, u d r c press Up, Down, Remove and Clear. The rows come out as
// points/addresses, and the selected row of each list.
TEST(PointLists, EditSequences) {
    enum Dialog { List, Bullets, Linked };
    const struct {
        Dialog dialog;
        const char* edits;
        std::deque<QString> urls;
        std::deque<int> answers;
        const char* rows;
        const char* selected;
        QStringList asked;
    } cases[] = {
        {List, "+A +B +C #0 u #2 d", {}, {}, "A,B,C/", "2/", {}},
        {List, "+A +B +C #1 u", {}, {}, "B,A,C/", "0/", {}},
        {List, "+A +B +C #1 d", {}, {}, "A,C,B/", "2/", {}},
        {List, "+A + >B r #1 r", {}, {}, "A,B/", "-1/", {kNoPoint}},
        {List, "u d +A c c", {}, {vbNo, vbYes}, "/", "-1/", {kClear + "292", kClear + "292"}},
        {Bullets, "+A >B #1 u c", {}, {}, "/", "-1/", {}},
        {Linked,
         "+A +B +C #0 d",
         {"a", "b", ""},
         {},
         "B,A/b,a",
         "1/1",
         {kAskUrl, kAskUrl, kAskUrl, kNoUrl}},
        {Linked,
         ">A >B #1 u r r",
         {"a", "b"},
         {},
         "A/a",
         "-1/-1",
         {kAskUrl, kAskUrl, kNoLinkedPoint}},
        {Linked, "+A c", {"a"}, {vbYes}, "/", "-1/-1", {kAskUrl, kClear + "4"}},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.program.prompts.inputs = c.urls;
        v.program.prompts.answers = c.answers;
        v.run([&] {
            if (c.dialog == List)
                v.zelvo.mnuDropDown();
            else if (c.dialog == Bullets)
                v.zelvo.mnuBullets();
            else
                v.zelvo.mnuListLinks();
        });
        ElementDialog& d =
            c.dialog == List      ? static_cast<ElementDialog&>(v.program.forms->get<formList>())
            : c.dialog == Bullets ? static_cast<ElementDialog&>(v.program.forms->get<bullets>())
                                  : v.program.forms->get<ListURLs>();
        PointControls& ui =
            c.dialog == List      ? static_cast<PointControls&>(v.program.forms->get<formList>().ui)
            : c.dialog == Bullets ? static_cast<PointControls&>(v.program.forms->get<bullets>().ui)
                                  : v.program.forms->get<ListURLs>().ui;
        for (const QString& edit : QString(c.edits).split(' ')) {
            const QString rest = edit.mid(1);
            switch (edit[0].unicode()) {
            case '+':
                ui.txtPoints.setText(rest);
                click(v, ui.btnAdd);
                break;
            case '>':
                type(ui.txtPointsView, rest);
                v.run([&] { press(ui.txtPointsView, Qt::Key_Return); });
                break;
            case '#':
                ui.listPoints->setCurrentRow(rest.toInt());
                break;
            default:
                click(v, edit == "u"   ? ui.btnUp
                         : edit == "d" ? ui.btnDown
                         : edit == "r" ? ui.btnRemove
                                       : ui.btnClear);
            }
        }
        const auto rows = [](QListWidget* list) {
            QStringList all;
            for (int i = 0; list && i < list->count(); ++i)
                all << list->item(i)->text();
            return all.join(',');
        };
        const auto selected = [](QListWidget* list) {
            return !list ? QString()
                   : list->currentItem() && list->currentItem()->isSelected()
                       ? QString::number(list->currentRow())
                       : "-1";
        };
        EXPECT_EQ(rows(ui.listPoints) + '/' + rows(ui.listURL), c.rows) << c.edits;
        EXPECT_EQ(selected(ui.listPoints) + '/' + selected(ui.listURL), c.selected) << c.edits;
        QStringList asked;
        for (int i = 0; i < int(v.program.prompts.asked.size()); ++i)
            asked << question(v.program, i);
        EXPECT_EQ(asked, c.asked) << c.edits;
        EXPECT_EQ(ui.txtPoints.text(), "") << c.edits;
        EXPECT_TRUE(d.isVisible()) << c.edits;
        EXPECT_TRUE(v.program.failures.empty()) << c.edits;
    }
}

namespace {

template <class D> D& dialog(BuilderViews& v) {
    return v.program.forms->get<D>();
}

} // namespace

// Each dialog by its menu item or toolbar key from each view that has one, filled
// and accepted: the fragment in the source text at the selection, or in the page
// after the tick. The source holds "one two three" with "one" selected, the page
// the same with "two" selected.
TEST(ListDialogs, FromEachViewByItsMenuTheFragmentGoesWhereTheCallerSaid) {
    const QString onchange =
        R"~( onchange="location.href= (form.go.options[form.go.selectedIndex].value)">)~";
    const struct {
        const char* what;
        std::function<void(BuilderViews&)> open;
        std::function<ElementDialog&(BuilderViews&)> fill;
        const char* accept;
        QString caption, help, area, page;
    } cases[] = {
        {"form, source", [](BuilderViews& v) { v.zelvo.ui.mnuiForm->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             dialog<formForm>(v).ui.txtName.setText("f");
             return dialog<formForm>(v);
         },
         "OKButton", "Insert Form : Zelvo", "INSERT FORM",
         R"(<form name="f" method="Get" action="" target="_self"><input type="submit" name="submit"></form> two three)",
         "one two three"},
        {"form, page", [](BuilderViews& v) { v.tessara.ui.mnuInsForm->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             formForm& d = dialog<formForm>(v);
             d.ui.txtName.setText("f");
             d.ui.cmbMethod->setCurrentText("Post");
             d.ui.txtAction.setText("a.cgi");
             d.ui.cmbTarget->setCurrentText("_top");
             return d;
         },
         "OKButton", "Insert Form : Zelvo", "INSERT FORM", "one two three",
         R"(one <form name="f" method="Post" action="a.cgi" target="_top"><input type="submit" name="submit"></form> three)"},
        {"drop-down, source", [](BuilderViews& v) { v.zelvo.ui.mnuDropDown->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             formList& d = dialog<formList>(v);
             d.ui.txtName.setText("l");
             for (const char* point : {"A", "B"}) {
                 d.ui.txtPoints.setText(point);
                 d.ui.btnAdd->click();
             }
             return d;
         },
         "OKButton", "List : Zelvo", "DROP-DOWN LIST",
         "<SELECT name=l>\r\n<OPTION>A\r\n<OPTION>B\r\n</SELECT> two three", "one two three"},
        {"list, page", [](BuilderViews& v) { v.tessara.ui.mnuList->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             formList& d = dialog<formList>(v);
             d.ui.txtName.setText("l");
             d.ui.txtSize.setText("3");
             d.ui.txtTab.setText("2");
             d.ui.radYes->setChecked(true);
             return d;
         },
         "OKButton", "List : Zelvo", "DROP-DOWN LIST", "one two three",
         "one <SELECT name=l size=3 tabindex=\"2\" MULTIPLE>\r\n</SELECT> three"},
        {"linked, source", [](BuilderViews& v) { v.zelvo.ui.mnuListLinks->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             ListURLs& d = dialog<ListURLs>(v);
             d.ui.txtName.setText("go");
             d.ui.txtPoints.setText("Home");
             v.program.prompts.inputs = {"index.html"};
             d.ui.btnAdd->click();
             return d;
         },
         "btnInsert", "List With Linked Points : Zelvo", "LIST WITH LINKED POINTS",
         "<body><form><SELECT name=go" + onchange +
             "\r\n<OPTION value=\"index.html\">Home</OPTION>\r\n</SELECT></form></body> two three",
         "one two three"},
        {"linked, page", [](BuilderViews& v) { v.tessara.ui.mnuListLinks->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             ListURLs& d = dialog<ListURLs>(v);
             EXPECT_EQ(d.ui.compOrEdit.text(), "");
             d.ui.txtName.setText("go");
             return d;
         },
         "btnInsert", "List With Linked Points : Zelvo", "LIST WITH LINKED POINTS", "one two three",
         "one <form><SELECT name=go" + onchange + "\r\n</SELECT></form> three"},
        {"bullets, toolbar", [](BuilderViews& v) { v.zelvo.ui.btnBullets->click(); },
         [](BuilderViews& v) -> ElementDialog& {
             bullets& d = dialog<bullets>(v);
             EXPECT_TRUE(d.ui.listTypeBul->isEnabled() && d.ui.listTypeBul->item(0)->isSelected());
             EXPECT_FALSE(d.ui.listTypeNum->isEnabled() || d.ui.txtStartView->isEnabled());
             EXPECT_EQ(d.ui.listTypeBula->currentText(), "circle");
             // A start entered under Numbering stays with Bullets.
             d.ui.radNum->click();
             EXPECT_TRUE(d.ui.txtStartView->isEnabled() && !d.ui.listTypeBul->isEnabled());
             d.ui.txtStart.setText("5");
             d.ui.radBul->click();
             d.ui.listTypeBula->setCurrentText("square");
             d.ui.txtPoints.setText("A");
             d.ui.btnAdd->click();
             return d;
         },
         "btnInsert", "Bullets And Numbering : Zelvo", "BULLETS AND NUMBERING",
         "<UL style=\"list-style-type: square;\" start=5>\r\n<LI>A\r\n</UL> two three",
         "one two three"},
        {"numbering, menu", [](BuilderViews& v) { v.zelvo.ui.mnuNumbering->trigger(); },
         [](BuilderViews& v) -> ElementDialog& {
             bullets& d = dialog<bullets>(v);
             EXPECT_TRUE(d.ui.radNum->isChecked() && d.ui.txtStartView->isEnabled());
             EXPECT_TRUE(d.ui.listTypeNum->item(0)->isSelected() && !d.ui.listTypeBul->isEnabled());
             d.ui.listTypeBula->setCurrentText("decimal");
             d.ui.txtStart.setText("3");
             // Shown to the page's caller too, it writes into the source.
             d.ui.compOrEdit.setText("comp");
             return d;
         },
         "btnInsert", "Bullets And Numbering : Zelvo", "BULLETS AND NUMBERING",
         "<OL style=\"list-style-type: decimal;\" start=3>\r\n<LI>a\r\n</OL> two three",
         "one two three"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("one");
        v.page().selectText("two");
        v.run([&] { c.open(v); });
        ElementDialog* d = nullptr;
        v.run([&] { d = &c.fill(v); });
        EXPECT_TRUE(d->isVisible()) << c.what;
        EXPECT_EQ(d->caption(), c.caption) << c.what;
        EXPECT_TRUE(d->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << c.what;
        click(v, d->window()->findChild<QPushButton*>("btnHelp"));
        EXPECT_TRUE(v.program.forms->get<frmHelp>().ui.txtHelp.text().startsWith(c.help)) << c.what;

        click(v, d->window()->findChild<QPushButton*>(c.accept));
        EXPECT_EQ(v.area().text(), c.area) << c.what;
        if (v.tessara.ui.Timer1.enabled())
            v.tick();
        EXPECT_EQ(v.page().bodyContent(), c.page) << c.what;
        v.settle();
        EXPECT_FALSE(v.loaded<formForm>() || v.loaded<formList>() || v.loaded<ListURLs>() ||
                     v.loaded<bullets>())
            << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
    }
}

// A missing name is warned of and keeps the dialog in sight; a list with links
// still open from the source view keeps writing there when the page's menu shows
// it; the console gets the form with the end of its tag selected.
TEST(ListDialogs, MissingNamesTheKeptCallerAndTheConsole) {
    BuilderViews v;
    v.run([&] { v.zelvo.mnuiForm(); });
    click(v, dialog<formForm>(v).ui.OKButton);
    v.run([&] { v.zelvo.mnuDropDown(); });
    click(v, dialog<formList>(v).ui.OKButton);
    v.run([&] { v.zelvo.mnuListLinks(); });
    click(v, dialog<ListURLs>(v).ui.btnInsert);
    EXPECT_EQ(question(v.program, 0), "Please enter a valid name|Field Missing|48");
    EXPECT_EQ(question(v.program, 1), "A valid name has not been entered|Assistant: Zelvo|48");
    EXPECT_EQ(question(v.program, 2), question(v.program, 1));
    EXPECT_TRUE(dialog<formForm>(v).isVisible() && dialog<formList>(v).isVisible() &&
                dialog<ListURLs>(v).isVisible());

    v.run([&] { v.tessara.mnuListLinks(); });
    EXPECT_EQ(dialog<ListURLs>(v).ui.compOrEdit.text(), "edit");

    TextControl& code = v.program.forms->get<JSConsole>().ui.theCode;
    formForm& f = dialogFor<formForm>(*v.program.forms, caller::kConsole);
    f.ui.txtName.setText("f");
    click(v, f.ui.OKButton);
    EXPECT_EQ(
        code.text(),
        R"(<body><form name="f" method="Get" action="" target="_self" ><input type="submit" name="submit"></form></body>)");
    EXPECT_EQ(code.selStart(), code.text().indexOf(" >") + 1);
    EXPECT_EQ(code.selText(), ">");

    // A caller that is none of the three gets nothing.
    formForm& g = dialogFor<formForm>(*v.program.forms, "x");
    g.ui.txtName.setText("g");
    click(v, g.ui.OKButton);
    v.settle();
    EXPECT_FALSE(v.loaded<formForm>());
    EXPECT_EQ(code.text().count("<form"), 1);
    EXPECT_EQ(v.area().text() + v.page().bodyContent(), "one two three");
    EXPECT_TRUE(v.program.failures.empty());
}
