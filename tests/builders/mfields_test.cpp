#include "builderkit.h"

#include "builders/fieldgen.h"
#include "designer/mformlist.h"
#include "designer/morvane.h"

#include <QPushButton>
#include <QToolButton>

using namespace zt;
using namespace zt::test;

TEST(DesignerFieldGenerators, TheTextAreaTakesTheTextBoxStyleWithItsShortBackground) {
    const QString style = textboxStyle({.colour = "red",
                                        .background = "#00FF00",
                                        .backgroundProperty = "background",
                                        .font = "",
                                        .fontSize = "9",
                                        .italic = true});
    EXPECT_EQ(
        style,
        R"(style="color:red;background:#00FF00;font-family:;font-size:9;font-style:italic;")");
    EXPECT_EQ(textAreaTag({.name = "t", .tabIndex = "2", .style = style}),
              "<TEXTAREA name=\"t\" tabindex=\"2\"" + style + ">\r\n\r\n</TEXTAREA>");
}

// Each dialog by its button on the designer: filled in, Insert writes the field as
// the strip's whole document and the dialog goes; an empty name is warned of and the
// dialog stays. The views are never touched.
TEST(DesignerFields, EachByItsButtonIntoTheStrip) {
    BuilderViews v;
    morvane& m = v.program.forms->get<morvane>();
    v.area().setText("source");
    const QString page = v.page().documentHTML();
    using U = morvane::Ui;
    const QString noName = "A valid name was not found|Assistant: Zelvo|48";
    const struct {
        QToolButton* U::*button;
        QString caption;
        QString entries;
        QString want; // the strip's field, or the question of an empty name
        bool cancels = false;
    } cases[] = {
        {&U::btnText, "Insert Text Box", "txtName=a|chkUseStyle",
         R"(<INPUT type="text" name="a"style="font-family:Arial;font-size:14;">)"},
        {&U::btnText, "Insert Text Box",
         "txtName=p|txtDefault=d|txtSize=1x|txtMaxLen=2|txtTab=3|radYes|chkReadOnly",
         R"(<INPUT type="password" name="p" value="d" size="1x" maxlength="2" tabindex="3" readonly="readonly">)"},
        {&U::btnText, "Insert Text Box", "", noName},
        {&U::btnTextArea, "Insert Text Area",
         "txtName=t|txtWidth=w|txtLines=4|txtDefault=hi|chkAdvanced|chkUseStyle|cmbbgcolour=red|"
         "listFont=Courier New|chkBold|chkBorder",
         "<TEXTAREA name=\"t\" cols=\"w\" rows=\"4\"style=\"background:red;font-family:Courier "
         "New;font-size:14;font-weight:bold;\">\r\nhi\r\n</TEXTAREA>"},
        {&U::btnTextArea, "Insert Text Area", "", noName},
        {&U::btnButton, "Insert Button", "txtName=x", R"(<INPUT type="button" name="x">)"},
        {&U::btnButton, "Insert Button", "txtName=go|txtValue=Go|txtTab=t|radReset",
         R"(<INPUT type="reset" name="go" value="Go" tabindex="t">)"},
        {&U::btnButton, "Insert Button", "", noName},
        {&U::btnRadio, "Insert Option Buttons : Zelvo", "txtName=r|txtValue=1|chkChecked",
         R"(<INPUT type="radio" name="r" value="1" checked>)"},
        {&U::btnCheckBox, "Insert Option Buttons : Zelvo", "txtName=c|txtTab=2",
         R"(<INPUT type="checkbox" name="c" tabindex="2">)"},
        {&U::btnRadio, "Insert Option Buttons : Zelvo", "", noName},
        {&U::btnFile, "File Upload", "txtName=f|txtDefault=a.txt|txtSize=9|txtTab=q",
         R"(<INPUT type="file" name="f" value="a.txt" size="9" tabindex="q">)"},
        {&U::btnFile, "File Upload", "", noName},
        {&U::btnFieldSet, "Fieldset", "listAlign=1", "<FIELDSET> </FIELDSET>", true},
        {&U::btnFieldSet, "Fieldset", "txtCaption=Who|listAlign=1",
         R"(<FIELDSET><LEGEND align="Right">Who</LEGEND> </FIELDSET>)", true},
        {&U::btnHidden, "Insert Hidden Element", "txtName=h",
         R"(<input type="hidden" value="" name="h">)", true},
        {&U::btnHidden, "Insert Hidden Element", "", "Invalid name||0", true},
        {&U::btnListBox, "List", "txtName=l", "<SELECT name=l size=5>\r\n</SELECT>"},
        {&U::btnDropDown, "List", "txtName=l|txtTab=1|radYes",
         "<SELECT name=l tabindex=\"1\" MULTIPLE>\r\n</SELECT>"},
        {&U::btnDropDown, "List", "", "A valid name has not been entered|Assistant: Zelvo|48"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.want.toStdString());
        m.ui.tagbar->setDocumentHTML("<p>before</p>");
        v.program.prompts.asked.clear();
        (m.ui.*c.button)->click();
        QWidget* dialog = shown(c.caption);
        ASSERT_TRUE(dialog);
        EXPECT_FALSE(dialog->findChild<QPushButton*>("btnHelp"));
        EXPECT_EQ(bool(dialog->findChild<QPushButton*>("CancelButton")), c.cancels);
        fillIn(dialog, c.entries.split('|', Qt::SkipEmptyParts));
        dialog->findChild<QPushButton*>("btnInsert")->click();
        if (c.want.contains('|')) {
            EXPECT_EQ(question(v.program), c.want);
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_TRUE(m.ui.tagbar->documentHTML().contains("before"));
            dialog->close();
        } else {
            EXPECT_TRUE(v.program.prompts.asked.empty());
            EXPECT_TRUE(m.ui.tagbar->documentHTML().contains(c.want));
            EXPECT_FALSE(m.ui.tagbar->documentHTML().contains("before"));
            EXPECT_FALSE(shown(c.caption));
        }
        v.settle();
    }
    EXPECT_EQ(v.area().text(), "source");
    EXPECT_EQ(v.page().documentHTML(), page);
}

// Points are typed one a line: Enter ends each. Add takes the box as it stands, and
// Up and Down rebuild the list through the hidden `correction`.
TEST(DesignerFields, ListPointsByKeysAndButtons) {
    BuilderViews v;
    morvane& m = v.program.forms->get<morvane>();
    m.ui.btnDropDown->click();
    MformList& list = v.program.forms->get<MformList>();
    EXPECT_TRUE(list.ui.txtSize.text().isEmpty());
    list.ui.txtName.setText("l");
    type(list.ui.txtPointsEdit, "A");
    press(list.ui.txtPointsEdit, Qt::Key_Return, "\r");
    type(list.ui.txtPointsEdit, "B");
    press(list.ui.txtPointsEdit, Qt::Key_Return, "\r");
    EXPECT_TRUE(list.ui.txtPoints.text().isEmpty());
    list.ui.txtPoints.setText("C");
    list.ui.btnAdd->click();
    list.ui.btnAdd->click();
    EXPECT_EQ(list.pointList.points(), QStringList({"A", "B", "C", ""}));
    EXPECT_EQ(list.ui.btnAdd->text(), "&Add Point");

    list.ui.btnRemove->click();
    v.program.prompts.answers = {vbNo};
    list.ui.btnClear->click();
    EXPECT_EQ(question(v.program), "No point selected to remove|Assistant: Zelvo|48");
    EXPECT_EQ(question(v.program, 1),
              "Are you sure you wish to clear the list?|Assistant: Zelvo|292");
    list.ui.listPoints->setCurrentRow(2);
    list.ui.btnUp->click();
    list.ui.btnUp->click();
    list.ui.btnUp->click();
    list.ui.listPoints->setCurrentRow(3);
    list.ui.btnDown->click();
    list.ui.btnRemove->click();
    EXPECT_EQ(list.pointList.points(), QStringList({"C", "A", "B"}));
    EXPECT_EQ(list.ui.correction->count(), 4) << "the last move went through it";
    EXPECT_FALSE(list.ui.correction->isVisible());

    list.ui.btnInsert->click();
    EXPECT_TRUE(m.ui.tagbar->documentHTML().contains(
        "<SELECT name=l>\r\n<OPTION>C\r\n<OPTION>A\r\n<OPTION>B\r\n</SELECT>"));
}
