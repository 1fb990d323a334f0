#include "builderkit.h"

#include "builders/bullets.h"
#include "builders/formform.h"
#include "builders/formlist.h"
#include "builders/listgen.h"
#include "builders/listurls.h"
#include "help/frmhelp.h"
#include "pagehelpers/jsconsole.h"

#include <QPushButton>
#include <QToolButton>

using namespace zt;
using namespace zt::test;

namespace {

const QString kOnchange =
    R"~( onchange="location.href= (form.go.options[form.go.selectedIndex].value)">)~";

PointControls& pointsOf(BuilderViews& v) {
    if (v.loaded<formList>())
        return v.program.forms->get<formList>().ui;
    if (v.loaded<bullets>())
        return v.program.forms->get<bullets>().ui;
    return v.program.forms->get<ListURLs>().ui;
}

QString selected(const QListWidget* list) {
    if (!list)
        return {};
    return QString::number(
        list->currentItem() && list->currentItem()->isSelected() ? list->currentRow() : -1);
}

const QString kWarn = "|Assistant: Zelvo|48";
const QString kNoPoint = "No point selected to remove" + kWarn;
const QString kNoUrl = "Valid URL was not entered" + kWarn;
const QString kPickPoint =
    "No point selected to remove. Please click on a point in the options list" + kWarn;
const QString kAsk =
    "Enter the url/location to which the point has to be linked to|Enter address/URL|0";
const QString kClear = "Are you sure you wish to clear the list?|Assistant: Zelvo|";

} // namespace

// Edits as words: +X adds X by the button, >X types X and presses Enter, #n selects
// row n, u d r c press Up, Down, Remove and Clear. The rows come out as
// points/addresses, and the selected row of each list.
TEST(PointLists, EditSequences) {
    const auto drop = &Zelvo::mnuDropDown, links = &Zelvo::mnuListLinks;
    const struct {
        void (Zelvo::*open)();
        const char* edits;
        std::deque<QString> urls;
        std::deque<int> answers;
        const char *rows, *selected;
        QStringList asked;
    } cases[] = {
        {drop, "+A +B +C #0 u #2 d #1 d #1 u", {}, {}, "C,A,B/", "0/", {}},
        {drop, "+A + >B r #1 r", {}, {}, "A,B/", "-1/", {kNoPoint}},
        {drop, "u d +A c c", {}, {vbNo, vbYes}, "/", "-1/", {kClear + "292", kClear + "292"}},
        {&Zelvo::mnuBullets, "+A >B #1 u c", {}, {}, "/", "-1/", {}},
        {links, "+A +B +C #0 d", {"a", "b", ""}, {}, "B,A/b,a", "1/1", {kAsk, kAsk, kAsk, kNoUrl}},
        {links, ">A >B #1 u r r", {"a", "b"}, {}, "A/a", "-1/-1", {kAsk, kAsk, kPickPoint}},
        {links, "+A c", {"a"}, {vbYes}, "/", "-1/-1", {kAsk, kClear + "4"}},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.program.prompts.inputs = c.urls;
        v.program.prompts.answers = c.answers;
        v.run([&] { (v.zelvo.*c.open)(); });
        PointControls& ui = pointsOf(v);
        for (const QString& edit : QString(c.edits).split(' ')) {
            const QString rest = edit.mid(1);
            if (edit[0] == '+') {
                ui.txtPoints.setText(rest);
                v.click(ui.btnAdd);
            } else if (edit[0] == '>') {
                type(ui.txtPointsView, rest);
                v.run([&] { press(ui.txtPointsView, Qt::Key_Return); });
            } else if (edit[0] == '#') {
                ui.listPoints->setCurrentRow(rest.toInt());
            } else {
                v.click(edit == "u"   ? ui.btnUp
                        : edit == "d" ? ui.btnDown
                        : edit == "r" ? ui.btnRemove
                                      : ui.btnClear);
            }
        }
        EXPECT_EQ(rowsOf(ui.listPoints).join(',') + '/' + rowsOf(ui.listURL).join(','), c.rows)
            << c.edits;
        EXPECT_EQ(selected(ui.listPoints) + '/' + selected(ui.listURL), c.selected) << c.edits;
        QStringList asked;
        for (int i = 0; i < int(v.program.prompts.asked.size()); ++i)
            asked << question(v.program, i);
        EXPECT_EQ(asked, c.asked) << c.edits;
        EXPECT_EQ(ui.txtPoints.text(), "") << c.edits;
        EXPECT_TRUE(ui.listPoints->window()->isVisible()) << c.edits;
        EXPECT_TRUE(v.program.failures.empty()) << c.edits;
    }
}

// Each dialog by its menu item or toolbar key from each view that has one, filled
// (a field=value, or a button's name to press it; points added one by one, with
// their addresses after =) and accepted: the fragment replaces "one" of the source
// text, or "two" of the page after the tick.
TEST(ListDialogs, FromEachViewByItsMenuTheFragmentGoesWhereTheCallerSaid) {
    using V = BuilderViews;
    const struct {
        std::function<void(V&)> open;
        const char *dialog, *fields, *points;
        bool toPage;
        QString fragment;
    } cases[] = {
        {[](V& v) { v.zelvo.ui.mnuiForm->trigger(); }, "formForm", "txtName=f", "", false,
         R"(<form name="f" method="Get" action="" target="_self"><input type="submit" name="submit"></form>)"},
        {[](V& v) { v.tessara.ui.mnuInsForm->trigger(); }, "formForm",
         "txtName=f cmbMethod=Post txtAction=a.cgi cmbTarget=_top", "", true,
         R"(<form name="f" method="Post" action="a.cgi" target="_top"><input type="submit" name="submit"></form>)"},
        {[](V& v) { v.zelvo.ui.mnuDropDown->trigger(); }, "formList", "txtName=l", "A,B", false,
         "<SELECT name=l>\r\n<OPTION>A\r\n<OPTION>B\r\n</SELECT>"},
        {[](V& v) { v.tessara.ui.mnuList->trigger(); }, "formList",
         "txtName=l txtSize=3 txtTab=2 radYes", "", true,
         "<SELECT name=l size=3 tabindex=\"2\" MULTIPLE>\r\n</SELECT>"},
        {[](V& v) { v.zelvo.ui.mnuListLinks->trigger(); }, "ListURLs", "txtName=go",
         "Home=index.html,Us=us.html", false,
         "<body><form><SELECT name=go" + kOnchange +
             "\r\n<OPTION value=\"index.html\">Home</OPTION>\r\n<OPTION "
             "value=\"us.html\">Us</OPTION>\r\n</SELECT></form></body>"},
        {[](V& v) { v.tessara.ui.mnuListLinks->trigger(); }, "ListURLs",
         "txtName=go txtSize=1 txtTab=4 radYes", "", true,
         R"(<form><SELECT name=go size=1 tabindex="4" MULTIPLE)" + kOnchange +
             "\r\n</SELECT></form>"},
        // A start entered under Numbering stays with Bullets.
        {[](V& v) { v.zelvo.ui.btnBullets->click(); }, "bullets",
         "radNum txtStart=5 radBul listTypeBula=square", "A", false,
         "<UL style=\"list-style-type: square;\" start=5>\r\n<LI>A\r\n</UL>"},
        // From any caller the list goes to the source.
        {[](V& v) { v.zelvo.ui.mnuNumbering->trigger(); }, "bullets",
         "listTypeBula=decimal txtStart=3 compOrEdit=comp", "", false,
         "<OL style=\"list-style-type: decimal;\" start=3>\r\n<LI>a\r\n</OL>"},
        {[](V& v) { dialogFor<bullets>(*v.program.forms, "edit").show(); }, "bullets", "", "",
         false, "< style=\"list-style-type: circle;\">\r\n<LI>a\r\n</>"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("one");
        v.page().selectText("two");
        v.run([&] { c.open(v); });
        QWidget* d = shown(c.dialog);
        ASSERT_TRUE(d) << c.dialog;
        QStringList fields = QString(c.fields).split(' ', Qt::SkipEmptyParts);
        if (fields.removeOne("compOrEdit=comp"))
            v.program.forms->get<bullets>().ui.compOrEdit.setText("comp");
        fillIn(d, fields);
        for (const QString& point : QString(c.points).split(',', Qt::SkipEmptyParts)) {
            v.program.prompts.inputs.push_back(point.section('=', 1));
            pointsOf(v).txtPoints.setText(point.section('=', 0, 0));
            v.click(pointsOf(v).btnAdd);
        }
        v.click(d->findChild<QPushButton*>("btnHelp"));
        EXPECT_FALSE(v.program.forms->get<frmHelp>().ui.txtHelp.text().isEmpty()) << c.dialog;

        auto* ok = d->findChild<QPushButton*>("OKButton");
        v.click(ok ? ok : d->findChild<QPushButton*>("btnInsert"));
        const QString source = c.toPage ? "one" : c.fragment;
        EXPECT_EQ(v.area().text(), source + " two three") << c.dialog;
        if (v.tessara.ui.Timer1.enabled())
            v.tick();
        const QString page = c.toPage ? c.fragment : "two";
        EXPECT_EQ(v.page().bodyContent(), "one " + page + " three") << c.dialog;
        v.settle();
        EXPECT_FALSE(shown(c.dialog)) << c.dialog;
        EXPECT_TRUE(v.program.failures.empty()) << c.dialog;
    }
}

// The openers of bullets and numbering; a missing name is warned of and keeps the
// dialog in sight; a list with links still open from the source view keeps writing
// there when the page's menu shows it; the console gets the form with the end of its
// tag selected, and a caller that is none of the three gets nothing.
TEST(ListDialogs, OpenersMissingNamesTheKeptCallerAndTheConsole) {
    BuilderViews v;
    bullets& b = v.program.forms->get<bullets>();
    for (auto [open, numbers] :
         {std::pair{&Zelvo::mnuBullets, false}, {&Zelvo::mnuNumbering, true}}) {
        v.run([&] { (v.zelvo.*open)(); });
        QListWidget* first = numbers ? b.ui.listTypeNum : b.ui.listTypeBul;
        EXPECT_TRUE(first->isEnabled() && first->item(0)->isSelected()) << numbers;
        EXPECT_EQ(b.ui.txtStartView->isEnabled(), numbers);
        EXPECT_NE(b.ui.listTypeNum->isEnabled(), b.ui.listTypeBul->isEnabled());
    }

    v.run([&] { v.zelvo.mnuiForm(); });
    v.click(v.program.forms->get<formForm>().ui.OKButton);
    v.run([&] { v.zelvo.mnuDropDown(); });
    v.click(v.program.forms->get<formList>().ui.OKButton);
    v.run([&] { v.zelvo.mnuListLinks(); });
    v.click(v.program.forms->get<ListURLs>().ui.btnInsert);
    EXPECT_EQ(question(v.program, 0), "Please enter a valid name|Field Missing|48");
    EXPECT_EQ(question(v.program, 1), "A valid name has not been entered|Assistant: Zelvo|48");
    EXPECT_EQ(question(v.program, 2), question(v.program, 1));
    EXPECT_TRUE(shown("formForm") && shown("formList") && shown("ListURLs"));
    v.run([&] { v.tessara.mnuListLinks(); });
    EXPECT_EQ(v.program.forms->get<ListURLs>().ui.compOrEdit.text(), "edit");

    TextControl& code = v.program.forms->get<JSConsole>().ui.theCode;
    for (const char* mode : {"jsc", "x"}) {
        formForm& f = dialogFor<formForm>(*v.program.forms, mode);
        f.ui.txtName.setText("f");
        v.click(f.ui.OKButton);
        v.settle();
    }
    EXPECT_EQ(
        code.text(),
        R"(<body><form name="f" method="Get" action="" target="_self" ><input type="submit" name="submit"></form></body>)");
    EXPECT_EQ(code.selStart(), code.text().indexOf(" >") + 1);
    EXPECT_EQ(code.selText(), ">");
    EXPECT_FALSE(v.loaded<formForm>());
    EXPECT_EQ(v.area().text() + v.page().bodyContent(), "one two three");
    EXPECT_TRUE(v.program.failures.empty());
}
