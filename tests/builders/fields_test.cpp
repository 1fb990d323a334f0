#include "builderkit.h"

#include "builders/fieldgen.h"
#include "builders/formbutton.h"
#include "builders/formfieldset.h"
#include "builders/formfile.h"
#include "builders/formhidden.h"
#include "builders/formradchk.h"
#include "builders/formtextarea.h"
#include "builders/formtextbox.h"
#include "help/frmhelp.h"
#include "pagehelpers/jsconsole.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

using namespace zt;
using namespace zt::test;

namespace {

template <class D> D& form(BuilderViews& v) {
    return v.program.forms->get<D>();
}

// Opens D for the caller with the name filled in and, where given, the kind set.
template <class D>
std::function<ElementDialog&(BuilderViews&, const QString&)>
named(const char* name, QRadioButton* D::Ui::*kind = nullptr) {
    return [=](BuilderViews& v, const QString& callerMode) -> ElementDialog& {
        D& d = dialogFor<D>(*v.program.forms, callerMode);
        if constexpr (requires { d.ui.txtName; })
            d.ui.txtName.setText(name);
        if (kind)
            (d.ui.*kind)->setChecked(true);
        return d;
    };
}

void insert(BuilderViews& v, ElementDialog& d) {
    v.run([&] { d.window()->findChild<QPushButton*>("btnInsert")->click(); });
}

} // namespace

// What the dialogs cannot show: an empty type, colours that count only with the style
// box ticked, a font of "none", a quote that ends its attribute.
TEST(FieldGenerators, TagsKeepTheirQuirks) {
    EXPECT_EQ(inputTag({.type = "", .name = "n", .checked = true}),
              R"(<INPUT type="" name="n" checked>)");
    EXPECT_EQ(textAreaTag({.name = "t", .text = "a\r\nb", .colour = "red", .border = true}),
              "<TEXTAREA name=\"t\">\r\na\r\nb\r\n</TEXTAREA>");
    EXPECT_EQ(textAreaTag({.name = R"(a"b)", .useStyle = true, .font = "none"}),
              "<TEXTAREA name=\"a\"b\">\r\n\r\n</TEXTAREA>");
}

// Each dialog by its menu item from each view: the caption, the help page, the
// fragment in the source text at the selection or in the page after the tick, and
// the dialog gone. The source is "one two three" with "two" selected, and so is the
// page.
TEST(FieldDialogs, EachByItsMenuItemFromEachView) {
    const struct {
        QString item, entries, caption, help, fragment;
    } cases[] = {
        {"zelvo/mnuTextBox",
         "txtName=q|txtDefault=d|txtMaxLen=5|txtSize=3|txtTab=2|chkReadOnly|chkUseStyle|"
         "cmbcolour=red|cmbbgcolour=|chkBold|chkItalics",
         "Insert Text Box : Zelvo", "TEXT BOX",
         R"(<INPUT type="text" name="q" value="d" size="3" maxlength="5" tabindex="2" )"
         R"(readonly="readonly"style="color:red;background-color:;font-family:Arial;)"
         R"(font-size:14;font-weight:bold;font-style:italic;">)"},
        {"tessara/mnuPassword", "txtName=p", "Insert Password Box : Zelvo", "TEXT BOX",
         R"(<INPUT type="password" name="p">)"},
        {"zelvo/mnuTextArea",
         "txtName=t|txtDefault=Hi|txtWidth=4|txtLines=2|txtTab=1|chkAdvanced|chkUseStyleTextarea|"
         "cmbcolour=red|cmbbgcolour=#00FF00|chkBorder",
         "Insert Text Area : Zelvo", "TEXT AREA",
         R"(<TEXTAREA name="t" cols="4" rows="2" tabindex="1" style="color:red" )"
         R"(style="background:#00FF00" style="border style:solid" style="font-family:">)"
         "\r\nHi\r\n</TEXTAREA>"},
        {"tessara/mnuTextArea", "txtName=t|chkAdvanced|chkUseStyleTextarea|listFont=Arial",
         "Insert Text Area : Zelvo", "TEXT AREA",
         "<TEXTAREA name=\"t\" style=\"font-family:Arial\">\r\n\r\n</TEXTAREA>"},
        {"zelvo/mnuSubmit", "txtName=go|txtValue=Go", "Insert Button : Zelvo", "BUTTON",
         R"(<INPUT type="submit" name="go" value="Go">)"},
        {"tessara/mnuReset", "txtName=r|txtTab=3", "Insert Button : Zelvo", "BUTTON",
         R"(<INPUT type="reset" name="r" tabindex="3">)"},
        {"zelvo/mnuCheckbox", "txtName=a|chkChecked", "Insert Option Buttons : Zelvo", "",
         R"(<INPUT type="checkbox" name="a" checked>)"},
        {"tessara/mnuRadio", "txtName=c|txtValue=1", "Insert Option Buttons : Zelvo", "",
         R"(<INPUT type="radio" name="c" value="1">)"},
        {"zelvo/mnuFileUpload", "txtName=f|txtDefault=v|txtSize=9", "File Upload : Zelvo",
         "FILE UPLOAD", R"(<INPUT type="file" name="f" value="v" size="9">)"},
        {"tessara/mnuInsFile", "txtName=f", "File Upload : Zelvo", "FILE UPLOAD",
         R"(<INPUT type="file" name="f">)"},
        {"zelvo/mnuHidden", "txtName=h", "Insert Hidden Element : Zelvo", "HIDDEN",
         R"(<input type="hidden" value="" name="h">)"},
        {"tessara/mnuHidden", "txtName=h|txtValue=x", "Insert Hidden Element : Zelvo", "HIDDEN",
         R"(<input type="hidden" value="x" name="h">)"},
        {"zelvo/mnuFieldset", "txtCaption=Who|listAlign=1", "Fieldset : Zelvo", "FIELDSET",
         R"(<FIELDSET><LEGEND align="Right">Who</LEGEND> </FIELDSET>)"},
        {"tessara/mnuFieldset", "", "Fieldset : Zelvo", "FIELDSET", "<FIELDSET> </FIELDSET>"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("two");
        v.page().selectText("two");
        const bool visual = c.item.startsWith("tessara/");
        Form& view = visual ? static_cast<Form&>(v.tessara) : v.zelvo;
        v.run([&] { view.window()->findChild<QAction*>(c.item.section('/', 1))->trigger(); });
        QWidget* window = shown(c.caption);
        ASSERT_TRUE(window) << c.caption.toStdString();
        const std::string what = c.fragment.toStdString();
        fillIn(window, c.entries.split('|', Qt::SkipEmptyParts));
        if (!c.help.isEmpty()) {
            v.run([&] { window->findChild<QPushButton*>("btnHelp")->click(); });
            EXPECT_TRUE(form<frmHelp>(v).ui.txtHelp.text().startsWith(c.help)) << what;
        }
        v.run([&] { window->findChild<QPushButton*>("btnInsert")->click(); });
        v.settle();
        if (visual) {
            EXPECT_EQ(v.area().text(), "one two three") << what;
            v.tick();
            EXPECT_EQ(v.page().bodyContent(), "one " + c.fragment + " three") << what;
        } else {
            EXPECT_EQ(v.area().text(), "one " + c.fragment + " three") << what;
        }
        EXPECT_FALSE(shown(c.caption)) << what;
        EXPECT_TRUE(v.program.failures.empty()) << what;
    }
}

// Opened by the console, as it will: "jsc" written, the kind set, then shown. The
// inputs land open at the console's selection; the text area whole, with the first
// `>` of the console's text selected. A dialog told no caller delivers by its own
// test.
TEST(FieldDialogs, TheConsoleAndNoCaller) {
    using V = BuilderViews;
    const struct {
        QString mode;
        std::function<ElementDialog&(V&, const QString&)> open;
        QString code;
        int selLength = 0;
        QString area = "one two three", page = "one two three";
    } cases[] = {
        {"jsc", named<formTextbox>("q", &formTextbox::Ui::radNo),
         R"(<p><INPUT type="text" name="q" </p>)"},
        {"jsc", named<formButton>("b", &formButton::Ui::radSubmit),
         R"(<p><INPUT type="submit" name="b" </p>)"},
        {"jsc", named<formRadChk>("c"), R"(<p><INPUT type="checkbox" name="c" </p>)"},
        {"jsc", named<formFile>("f"), R"(<p><INPUT type="file" name="f" </p>)"},
        {"jsc", named<formTextArea>("t"), "<p><TEXTAREA name=\"t\" >\r\n\r\n</TEXTAREA></p>", 1},
        {"", named<formButton>("b"), "<p></p>"},
        {"jsc", named<formHidden>("h"), "<p></p>", 0,
         R"(one <input type="hidden" value="" name="h"> three)"},
        {"jsc", named<formFieldset>(""), "<p></p>", 0, "one two three",
         "one <FIELDSET> </FIELDSET> three"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("two");
        v.page().selectText("two");
        TextControl& code = form<JSConsole>(v).ui.theCode;
        code.setText("<p></p>");
        code.setSelStart(3);
        ElementDialog* d = nullptr;
        v.run([&] { d = &c.open(v, c.mode); });
        v.run([&] { d->show(); });
        insert(v, *d);
        if (v.tessara.ui.Timer1.enabled())
            v.tick();
        EXPECT_EQ(code.text(), c.code) << c.code.toStdString();
        EXPECT_EQ(code.selLength(), c.selLength) << c.code.toStdString();
        EXPECT_EQ(v.area().text(), c.area) << c.code.toStdString();
        EXPECT_EQ(v.page().bodyContent(), c.page) << c.code.toStdString();
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// Insert with no name: the text box warns and closes, losing what was typed; the
// others warn and stay, the focus left where it was, but for the hidden field's own
// plain box, which moves it to the name.
struct NoNameCase {
    std::function<void(BuilderViews&)> open;
    std::function<ElementDialog*(BuilderViews&)> loaded;
    QString question = "A valid name was not found|Assistant: Zelvo|48";
    bool stays = true, focusToName = false;
};

template <class D> std::function<ElementDialog*(BuilderViews&)> ifLoaded() {
    return [](BuilderViews& v) -> ElementDialog* { return v.loaded<D>() ? &form<D>(v) : nullptr; };
}

TEST(FieldDialogs, AnEmptyName) {
    using V = BuilderViews;
    const NoNameCase cases[] = {
        {[](V& v) { v.zelvo.mnuTextBox(); }, ifLoaded<formTextbox>(),
         "A valid name was not found|Assistant: Zelvo|48", false},
        {[](V& v) { v.zelvo.mnuTextArea(); }, ifLoaded<formTextArea>()},
        {[](V& v) { v.zelvo.mnuButton(); }, ifLoaded<formButton>()},
        {[](V& v) { v.zelvo.mnuRadio(); }, ifLoaded<formRadChk>()},
        {[](V& v) { v.tessara.mnuInsFile(); }, ifLoaded<formFile>()},
        {[](V& v) { v.tessara.mnuHidden(); }, ifLoaded<formHidden>(), "Invalid name||0", true,
         true},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("x");
        v.run([&] { c.open(v); });
        ElementDialog& d = *c.loaded(v);
        const std::string what = d.window()->objectName().toStdString();
        auto* elsewhere = d.window()->findChild<QWidget*>("txtValue");
        if (!elsewhere)
            elsewhere = d.window()->findChild<QWidget*>("txtTab");
        elsewhere->setFocus();
        const QString elsewhereName = elsewhere->objectName();
        insert(v, d);
        v.settle();
        EXPECT_EQ(question(v.program), c.question) << what;
        EXPECT_EQ(v.area().text(), "x") << what;
        EXPECT_FALSE(v.tessara.ui.Timer1.enabled()) << what;
        ElementDialog* still = c.loaded(v);
        ASSERT_EQ(still != nullptr, c.stays) << what;
        if (still) {
            EXPECT_EQ(still->window()->focusWidget()->objectName(),
                      c.focusToName ? "txtName" : elsewhereName)
                << what;
        }
    }
}

// The number checks stand where they are meant to and nowhere else: a refused text
// brings the warning and empties the field, any other stays as typed.
TEST(FieldDialogs, NumberFieldsAndFreeFields) {
    const struct {
        const char* dialog;
        const char* field;
        QString typed, kept;
    } cases[] = {
        {"formTextArea", "txtWidth", "4x", ""}, {"formTextArea", "txtLines", "1e3", "1e3"},
        {"formTextArea", "txtTab", "-", ""},    {"formButton", "txtTab", "a", ""},
        {"formFile", "txtTab", "a", ""},        {"formFile", "txtSize", "a", "a"},
        {"formRadChk", "txtTab", "a", "a"},     {"formTextbox", "txtSize", "a", "a"},
        {"formTextbox", "txtTab", "a", "a"},
    };
    BuilderViews v;
    for (auto open : {&Zelvo::mnuTextArea, &Zelvo::mnuButton, &Zelvo::mnuFileUpload,
                      &Zelvo::mnuRadio, &Zelvo::mnuTextBox})
        v.run([&] { (v.zelvo.*open)(); });
    for (const auto& c : cases) {
        v.program.prompts.asked.clear();
        auto* view = shown(c.dialog)->findChild<TextLineView*>(c.field);
        v.run([&] { view->control().setText(c.typed); });
        EXPECT_EQ(view->control().text(), c.kept) << c.dialog << c.field;
        EXPECT_EQ(question(v.program),
                  c.kept.isEmpty() ? "Please enter only valid numerical data|Assistant: Zelvo|48"
                                   : "")
            << c.dialog << c.field;
    }
}

// The text box's style group: off until ticked, the fonts but the first with Arial
// in the box, the colour buttons' list form; the text area unfolds its style group
// with an empty font; the field set's alignment waits for a caption; the option
// dialog's help is a box; Enter in a button's field inserts it.
TEST(FieldDialogs, StyleGroupsHelpAndEnter) {
    BuilderViews v;
    v.program.desktop.fonts = {"Zero", "One", "Two"};
    v.run([&] { v.tessara.mnuTextBox(); });
    formTextbox& t = form<formTextbox>(v);
    EXPECT_FALSE(t.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(t.ui.listFont->isEnabled() || t.ui.btnColour->isEnabled() ||
                 t.ui.chkItalics->isEnabled());
    v.run([&] { t.ui.chkUseStyle->click(); });
    EXPECT_TRUE(t.ui.listFont->isEnabled() && t.ui.btnBGColour->isEnabled());
    EXPECT_EQ(t.ui.listFont->itemText(0) + t.ui.listFont->itemText(1), "OneTwo");
    EXPECT_EQ(t.ui.cmbFontSize->currentText() + t.ui.cmbcolour->currentText() +
                  t.ui.cmbcolour->itemText(16),
              "14nonenone");
    v.program.pickers.colors = {255, 0};
    v.run([&] { t.ui.btnColour->click(); });
    v.run([&] { t.ui.btnBGColour->click(); });
    EXPECT_EQ(t.ui.cmbcolour->currentText() + "|" + t.ui.cmbbgcolour->currentText(), "#FF0000|");

    v.run([&] { v.zelvo.mnuTextArea(); });
    formTextArea& a = form<formTextArea>(v);
    EXPECT_TRUE(a.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    auto* style = a.window()->findChild<QGroupBox*>("grpStyle");
    EXPECT_TRUE(style->isHidden());
    v.run([&] { a.ui.chkAdvanced->click(); });
    EXPECT_FALSE(style->isHidden());
    EXPECT_EQ(a.ui.listFont->currentText() + a.ui.listFont->itemText(0), "One");

    v.run([&] { v.zelvo.mnuCheckbox(); });
    v.run([&] { form<formRadChk>(v).ui.btnHelp->click(); });
    EXPECT_EQ(question(v.program).section('|', 1), "Help: Zelvo Tessara|64");
    EXPECT_EQ(v.program.prompts.asked.at(0).text, form<formRadChk>(v).ui.txtHelp.text());

    v.run([&] { v.zelvo.mnuFieldset(); });
    formFieldset& f = form<formFieldset>(v);
    EXPECT_FALSE(f.ui.listAlign->isEnabled());
    f.ui.txtCaption.setText("Who");
    EXPECT_TRUE(f.ui.listAlign->isEnabled());

    v.area().setText("x");
    v.run([&] { v.zelvo.mnuButton(); });
    formButton& b = form<formButton>(v);
    b.ui.txtName.setText("b");
    b.ui.txtTabView->setFocus();
    press(b.ui.txtTabView, Qt::Key_Return);
    EXPECT_EQ(v.area().text(), R"(<INPUT type="button" name="b">x)");
    EXPECT_TRUE(v.program.failures.empty());
}
