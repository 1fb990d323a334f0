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

#include "platform/textlineview.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

template <class D> D& form(BuilderViews& v) {
    return v.program.forms->get<D>();
}

template <class D> D& opened(BuilderViews& v, const QString& callerMode) {
    return dialogFor<D>(*v.program.forms, callerMode);
}

void insert(BuilderViews& v, ElementDialog& d) {
    v.run([&] { d.window()->findChild<QPushButton*>("btnInsert")->click(); });
}

} // namespace

TEST(FieldGenerators, TagsKeepTheirOrderAndTheirQuirks) {
    const TextboxStyle plain{.font = "Arial", .fontSize = "14"};
    const struct {
        QString got, want;
    } cases[] = {
        {inputTag({.type = "", .name = "n"}), R"(<INPUT type="" name="n">)"},
        {inputTag({.type = "text",
                   .name = "n",
                   .value = "v",
                   .size = "3",
                   .maxLength = "5",
                   .tabIndex = "2",
                   .readOnly = true,
                   .checked = true,
                   .style = textboxStyle(plain)}),
         R"(<INPUT type="text" name="n" value="v" size="3" maxlength="5" tabindex="2" )"
         R"(readonly="readonly" checked)"
         R"(style="font-family:Arial;font-size:14;">)"},
        {textboxStyle({.colour = "red", .background = "", .bold = true, .italic = true}),
         R"(style="color:red;background-color:;font-family:;font-size:;font-weight:bold;)"
         R"(font-style:italic;")"},
        {textAreaTag({.name = "t", .text = "a\r\nb", .colour = "red", .border = true}),
         "<TEXTAREA name=\"t\">\r\na\r\nb\r\n</TEXTAREA>"},
        {textAreaTag({.name = "t",
                      .cols = "4",
                      .rows = "2",
                      .tabIndex = "1",
                      .useStyle = true,
                      .colour = "red",
                      .background = "#00FF00",
                      .border = true}),
         R"(<TEXTAREA name="t" cols="4" rows="2" tabindex="1" style="color:red" )"
         R"(style="background:#00FF00" style="border style:solid" style="font-family:">)"
         "\r\n\r\n</TEXTAREA>"},
        {textAreaTag({.name = R"(a"b)", .useStyle = true, .font = "none"}),
         "<TEXTAREA name=\"a\"b\">\r\n\r\n</TEXTAREA>"},
        {hiddenTag("h", ""), R"(<input type="hidden" value="" name="h">)"},
        {fieldsetTag("Who", "Right"),
         R"(<FIELDSET><LEGEND align="Right">Who</LEGEND> </FIELDSET>)"},
        {fieldsetTag("", "Left"), "<FIELDSET> </FIELDSET>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.got, c.want);
}

// Each dialog by its menu item from each view: the caption, the help page, the
// fragment in the source text at the selection or in the page after the tick, and
// the dialog gone. The source is "one two three" with "two" selected, and so is the
// page.
TEST(FieldDialogs, EachByItsMenuItemFromEachView) {
    using V = BuilderViews;
    const struct {
        std::function<QAction*(V&)> item;
        std::function<ElementDialog&(V&)> fill;
        QString caption, help, fragment;
    } cases[] = {
        {[](V& v) { return v.zelvo.ui.mnuTextBox; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formTextbox>(v);
             d.ui.txtName.setText("q");
             d.ui.chkUseStyle->click();
             return d;
         },
         "Insert Text Box : Zelvo", "TEXT BOX",
         R"(<INPUT type="text" name="q"style="font-family:Arial;font-size:14;">)"},
        {[](V& v) { return v.tessara.ui.mnuPassword; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formTextbox>(v);
             d.ui.txtName.setText("p");
             return d;
         },
         "Insert Password Box : Zelvo", "TEXT BOX", R"(<INPUT type="password" name="p">)"},
        {[](V& v) { return v.zelvo.ui.mnuTextArea; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formTextArea>(v);
             d.ui.txtName.setText("t");
             d.ui.txtDefault.setText("Hi");
             d.ui.chkAdvanced->click();
             d.ui.chkUseStyleTextarea->click();
             d.ui.cmbcolour->setCurrentText("red");
             d.ui.listFont->setCurrentText("Arial");
             return d;
         },
         "Insert Text Area : Zelvo", "TEXT AREA",
         "<TEXTAREA name=\"t\" style=\"color:red\" style=\"font-family:Arial\">\r\nHi\r\n"
         "</TEXTAREA>"},
        {[](V& v) { return v.tessara.ui.mnuTextArea; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formTextArea>(v);
             d.ui.txtName.setText("t");
             d.ui.txtWidth.setText("9");
             return d;
         },
         "Insert Text Area : Zelvo", "TEXT AREA",
         "<TEXTAREA name=\"t\" cols=\"9\">\r\n\r\n</TEXTAREA>"},
        {[](V& v) { return v.zelvo.ui.mnuSubmit; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formButton>(v);
             d.ui.txtName.setText("go");
             d.ui.txtValue.setText("Go");
             return d;
         },
         "Insert Button : Zelvo", "BUTTON", R"(<INPUT type="submit" name="go" value="Go">)"},
        {[](V& v) { return v.tessara.ui.mnuReset; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formButton>(v);
             d.ui.txtName.setText("r");
             d.ui.txtTab.setText("3");
             return d;
         },
         "Insert Button : Zelvo", "BUTTON", R"(<INPUT type="reset" name="r" tabindex="3">)"},
        {[](V& v) { return v.zelvo.ui.mnuCheckbox; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formRadChk>(v);
             d.ui.txtName.setText("a");
             d.ui.chkChecked->click();
             return d;
         },
         "Insert Option Buttons : Zelvo", "", R"(<INPUT type="checkbox" name="a" checked>)"},
        {[](V& v) { return v.tessara.ui.mnuRadio; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formRadChk>(v);
             d.ui.txtName.setText("c");
             d.ui.txtValue.setText("1");
             return d;
         },
         "Insert Option Buttons : Zelvo", "", R"(<INPUT type="radio" name="c" value="1">)"},
        {[](V& v) { return v.zelvo.ui.mnuFileUpload; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formFile>(v);
             d.ui.txtName.setText("f");
             d.ui.txtDefault.setText("v");
             d.ui.txtSize.setText("9");
             return d;
         },
         "File Upload : Zelvo", "FILE UPLOAD",
         R"(<INPUT type="file" name="f" value="v" size="9">)"},
        {[](V& v) { return v.tessara.ui.mnuInsFile; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formFile>(v);
             d.ui.txtName.setText("f");
             return d;
         },
         "File Upload : Zelvo", "FILE UPLOAD", R"(<INPUT type="file" name="f">)"},
        {[](V& v) { return v.zelvo.ui.mnuHidden; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formHidden>(v);
             d.ui.txtName.setText("h");
             return d;
         },
         "Insert Hidden Element : Zelvo", "HIDDEN", R"(<input type="hidden" value="" name="h">)"},
        {[](V& v) { return v.tessara.ui.mnuHidden; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formHidden>(v);
             d.ui.txtName.setText("h");
             d.ui.txtValue.setText("x");
             return d;
         },
         "Insert Hidden Element : Zelvo", "HIDDEN", R"(<input type="hidden" value="x" name="h">)"},
        {[](V& v) { return v.zelvo.ui.mnuFieldset; },
         [](V& v) -> ElementDialog& {
             auto& d = form<formFieldset>(v);
             EXPECT_FALSE(d.ui.listAlign->isEnabled());
             d.ui.txtCaption.setText("Who");
             EXPECT_TRUE(d.ui.listAlign->isEnabled());
             d.ui.listAlign->setCurrentRow(1);
             return d;
         },
         "Fieldset : Zelvo", "FIELDSET",
         R"(<FIELDSET><LEGEND align="Right">Who</LEGEND> </FIELDSET>)"},
        {[](V& v) { return v.tessara.ui.mnuFieldset; },
         [](V& v) -> ElementDialog& { return form<formFieldset>(v); }, "Fieldset : Zelvo",
         "FIELDSET", "<FIELDSET> </FIELDSET>"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("one two three");
        v.selectInArea("two");
        v.page().selectText("two");
        QAction* item = c.item(v);
        const bool visual = v.tessara.window()->findChildren<QAction*>().contains(item);
        v.run([&] { item->trigger(); });
        ElementDialog& d = c.fill(v);
        const std::string what = c.caption.toStdString() + " " + c.fragment.toStdString();
        EXPECT_TRUE(d.isVisible()) << what;
        EXPECT_EQ(d.caption(), c.caption) << what;
        if (!c.help.isEmpty()) {
            v.run([&] { d.window()->findChild<QPushButton*>("btnHelp")->click(); });
            EXPECT_TRUE(form<frmHelp>(v).ui.txtHelp.text().startsWith(c.help)) << what;
        }
        insert(v, d);
        v.settle();
        if (visual) {
            EXPECT_EQ(v.area().text(), "one two three") << what;
            v.tick();
            EXPECT_EQ(v.page().bodyContent(), "one " + c.fragment + " three") << what;
        } else {
            EXPECT_EQ(v.area().text(), "one " + c.fragment + " three") << what;
        }
        EXPECT_FALSE(v.loaded<formTextbox>() || v.loaded<formTextArea>() ||
                     v.loaded<formButton>() || v.loaded<formRadChk>() || v.loaded<formFile>() ||
                     v.loaded<formHidden>() || v.loaded<formFieldset>())
            << what;
        EXPECT_TRUE(v.program.failures.empty()) << what;
    }
}

// Opened by the console, as it will: "jsc" written, the kind set, then shown. The
// inputs land open at the console's selection; the text area whole, with the first
// `>` of the console's text selected. A dialog told no caller, or a wrong one,
// delivers by its own test.
TEST(FieldDialogs, TheConsoleAndNoCaller) {
    using V = BuilderViews;
    const struct {
        QString mode;
        std::function<ElementDialog&(V&, const QString&)> open;
        QString code;
        int selLength = 0;
        QString area = "one two three", page = "one two three";
    } cases[] = {
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formTextbox>(v, mode);
             d.ui.radNo->setChecked(true);
             d.ui.txtName.setText("q");
             return d;
         },
         R"(<p><INPUT type="text" name="q" </p>)"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formButton>(v, mode);
             d.ui.radSubmit->setChecked(true);
             d.ui.txtName.setText("b");
             return d;
         },
         R"(<p><INPUT type="submit" name="b" </p>)"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formRadChk>(v, mode);
             d.ui.txtName.setText("c");
             return d;
         },
         R"(<p><INPUT type="checkbox" name="c" </p>)"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formFile>(v, mode);
             d.ui.txtName.setText("f");
             return d;
         },
         R"(<p><INPUT type="file" name="f" </p>)"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formTextArea>(v, mode);
             d.ui.txtName.setText("t");
             return d;
         },
         "<p><TEXTAREA name=\"t\" >\r\n\r\n</TEXTAREA></p>", 1},
        {"",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formButton>(v, mode);
             d.ui.txtName.setText("b");
             return d;
         },
         "<p></p>"},
        {"Edit",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formTextbox>(v, mode);
             d.ui.txtName.setText("q");
             return d;
         },
         "<p></p>"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& {
             auto& d = opened<formHidden>(v, mode);
             d.ui.txtName.setText("h");
             return d;
         },
         "<p></p>", 0, R"(one <input type="hidden" value="" name="h"> three)"},
        {"jsc",
         [](V& v, const QString& mode) -> ElementDialog& { return opened<formFieldset>(v, mode); },
         "<p></p>", 0, "one two three", "one <FIELDSET> </FIELDSET> three"},
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
        {"formTextbox", "txtMaxLen", "a", "a"}, {"formTextbox", "txtTab", "a", "a"},
    };
    BuilderViews v;
    v.run([&] {
        v.zelvo.mnuTextArea();
        v.zelvo.mnuButton();
        v.zelvo.mnuFileUpload();
        v.zelvo.mnuRadio();
        v.zelvo.mnuTextBox();
    });
    for (const auto& c : cases) {
        v.program.prompts.asked.clear();
        QWidget* window = nullptr;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == c.dialog)
                window = top;
        ASSERT_TRUE(window) << c.dialog;
        auto* view = window->findChild<TextLineView*>(c.field);
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
// with an empty font; the option dialog's help is a box; Enter in a button's field
// inserts it.
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
    EXPECT_EQ(t.ui.listFont->currentText(), "Arial");
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

    v.area().setText("x");
    v.run([&] { v.zelvo.mnuButton(); });
    formButton& b = form<formButton>(v);
    b.ui.txtName.setText("b");
    b.ui.txtTabView->setFocus();
    press(b.ui.txtTabView, Qt::Key_Return);
    EXPECT_EQ(v.area().text(), R"(<INPUT type="button" name="b">x)");
    EXPECT_TRUE(v.program.failures.empty());
}
