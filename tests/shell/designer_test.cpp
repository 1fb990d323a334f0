#include "builders/builderkit.h"

#include "designer/bodyof.h"
#include "designer/medithtml.h"
#include "designer/morvane.h"
#include "designer/mwizard.h"
#include "designer/prewizard.h"

#include "platform/engine/memoryengine.h"
#include "support/failureof.h"

#include <QComboBox>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// How the engine writes the form box once the design has been through it, with a
// dropped field that shares the box's background.
const QString kDesign = QStringLiteral(
    "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY><div id=\"MorvaneForm\" style=\"position: relative; "
    "background-color: #ffffff; color: #000000;\"><input style=\"color: #ffffff;\"></div>\r\n"
    "</BODY>\r\n</HTML>\r\n");
const QString kBox = QStringLiteral(
    "<div id=\"MorvaneForm\" style=\"position:relative;left:0px;top:0px;width:400px;"
    "height:300px;background-color:#FFFFFF;color:#000000;border-width:1;border-style:solid;\">");

struct Designer : BuilderViews {
    morvane& m = program.forms->get<morvane>();
    PageEngine& Result() { return *m.ui.Result; }
    QByteArray bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
};

void listMenus(const QList<QAction*>& actions, int depth, QStringList& out) {
    for (QAction* a : actions) {
        if (a->isSeparator())
            continue;
        out << QString(depth * 2, ' ') + a->objectName() + '|' + a->text() + '|' +
                   a->shortcut().toString();
        if (a->menu())
            listMenus(a->menu()->actions(), depth + 1, out);
    }
}

} // namespace

// The menus, then Toolbar1's keys and the buttons with their tips.
TEST(Designer, CommandsStandAsDesigned) {
    Designer d;
    auto* window = static_cast<QMainWindow*>(d.m.window());
    QStringList out{d.m.caption()};
    listMenus(window->menuBar()->actions(), 0, out);
    for (QAction* key : window->findChild<QToolBar*>("Toolbar1")->actions())
        out << (key->isSeparator() ? QString("|") : key->objectName() + '=' + key->toolTip());
    for (const auto& row : morvaneButtons())
        out << (d.m.ui.*row.button)->objectName() + '=' + (d.m.ui.*row.button)->toolTip();
    EXPECT_EQ(
        out.join('\n').toStdString(),
        readFile(QStringLiteral(ZT_TEST_DATA "/morvane_commands.txt")).trimmed().toStdString());
}

TEST(Designer, KeysAndButtonsActThroughTheirMenusAndSwallowOnlyWhereTheyShould) {
    Designer d;
    d.m.ui.btnLabel->click();
    EXPECT_TRUE(d.m.ui.tagbar->documentHTML().contains(
        "<div style=\"height: 10px; left: 10px; position: absolute; top: 10px; width: "
        "100px\">New Label</div>"));
    d.run([&] { d.m.Toolbar1_ButtonClick("Drawing"); });
    EXPECT_TRUE(d.m.ui.tagbar->documentHTML().contains(
        "<div id=\"Box\" style=\"position:relative;left:0px;top:0px;width:50px;height:30px;"));
    EXPECT_EQ(BodyOf(d.Result().documentHTML()), kBox + "\r\n") << "loaded with the form box";

    // Nothing is selected: the format commands and every key pass over the failure,
    // the Edit menu does not.
    d.m.ui.mnuBold->trigger();
    d.run([&] { d.m.Toolbar1_ButtonClick("Cut"); });
    EXPECT_TRUE(d.program.failures.empty());
    d.m.ui.mnuCut->trigger();
    EXPECT_EQ(failure(d.program), RuntimeFailure::InvalidProcedureCall);
}

TEST(Designer, BodyOfCutsBetweenTheFirstBareBodyAndTheLastEnd) {
    const struct {
        QString page;
        QString body;
    } cases[] = {
        {"<HTML><BODY>a<b>c</b></BODY></HTML>", "a<b>c</b>"},
        {"<html><body>one</body><body>two</body></html>", "one</body><body>two"},
        {"<html><body bgcolor=red>x</body></html>", "><body bgcolor=red>x"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BodyOf(c.page), c.body) << c.page.toStdString();
    EXPECT_EQ(BodyOf("<body>" + QString(32760, 'x') + "</body>").size(), 32760);
    EXPECT_EQ(failureOf([] { BodyOf("<body>" + QString(32761, 'x') + "</body>"); }),
              RuntimeFailure::Overflow);
}

TEST(Designer, SaveAndOpenDesignFiles) {
    Designer d;
    const QString path = d.program.scratch("form.mfd");
    d.file("form.mfd", "old text that is longer than the new");
    d.Result().setDocumentHTML("<p>caf\u00e9</p>");
    d.program.pickers.files = {std::nullopt, path};
    d.m.ui.mnuSave->trigger();
    EXPECT_EQ(QDir(d.program.scratch("")).entryList(QDir::Files), QStringList{"form.mfd"});
    d.m.ui.mnuSave->trigger();
    EXPECT_EQ(d.bytes(path), "<p>caf\xe9</p>\r\n\r\n") << "replaced without a question";
    EXPECT_TRUE(d.program.prompts.asked.empty());
    EXPECT_EQ(d.program.pickers.asked[1].file.filter, "Morvane Form Files (*.mfd)|*.mfd");

    // Files up to 32767 bytes open; a longer one, or one that vanished, leaves the
    // design and says nothing.
    const QString fits = d.file("fits.mfd", "<i>" + QString(32764, 'y'));
    const QString over = d.file("over.mfd", "<u>" + QString(32765, 'z'));
    d.program.pickers.files = {over, d.program.scratch("gone.mfd"), std::nullopt, fits};
    for (int i = 0; i < 3; ++i)
        d.m.ui.mnuOpen->trigger();
    EXPECT_TRUE(d.Result().documentHTML().contains("<p>caf"));
    d.m.ui.mnuOpen->trigger();
    EXPECT_TRUE(d.Result().documentHTML().contains("<i>yyy"));
    EXPECT_TRUE(d.program.failures.empty() && d.program.prompts.asked.empty());

    // The export of the generated code writes the same way.
    Mwizard& code = d.program.forms->get<Mwizard>();
    code.ui.txtCode.setText("<form>");
    d.program.pickers.files = {d.program.scratch("code.txt")};
    code.ui.btnExport->click();
    EXPECT_EQ(d.bytes(d.program.scratch("code.txt")), "<form>\r\n");

    // The body is cut before the dialog and without protection.
    d.Result().setDocumentHTML("<body>" + QString(40000, 'x') + "</body>");
    d.program.pickers.files = {path};
    d.m.ui.mnuSave->trigger();
    EXPECT_EQ(failure(d.program), RuntimeFailure::Overflow);
    EXPECT_EQ(d.program.pickers.files.size(), 1u);
}

TEST(Designer, BoxColoursReplaceTheOldColourEverywhere) {
    Designer d;
    d.Result().setDocumentHTML(kDesign);
    d.program.pickers.colors = {0x0000FF, std::nullopt, 0, 0};
    d.m.ui.mnuBoxBGColour->trigger();
    EXPECT_EQ(d.program.forms->get<MeditHTML>().ui.txtCode.text().count("#ffffff"), 2);
    QString design = d.Result().documentHTML();
    EXPECT_EQ(design.count("#FF0000"), 2) << "the dropped field's colour changes too";
    // Cancel keeps the last colour; black, never taken, empties the value.
    d.m.ui.mnuBoxBorder->trigger();
    EXPECT_TRUE(d.Result().documentHTML().contains("color: #FF0000;\"><input style=\"color: "
                                                   "#FF0000;"));
    d.m.ui.mnuBoxBGColour->trigger();
    EXPECT_TRUE(d.Result().documentHTML().contains("background-color: ; color: ;"));
    EXPECT_TRUE(d.program.failures.empty());

    d.Result().setDocumentHTML("<DIV ID=MorvaneForm style=\"color: #000000\"></DIV>");
    d.m.ui.mnuBoxBorder->trigger();
    EXPECT_EQ(failure(d.program), RuntimeFailure::InvalidProcedureCall);
}

TEST(Designer, PreviewTurnsOffTheInsertsAndTheEditMenuAndBack) {
    Designer d;
    // Preview, browse mode, then the inserts and the Edit menu; the rest stays enabled.
    for (const bool on : {true, false}) {
        d.m.ui.mnuPreview->trigger();
        const auto& ui = d.m.ui;
        EXPECT_EQ(std::vector({ui.mnuPreview->isChecked(), d.Result().browseMode(),
                               ui.toolbar->isEnabled(), ui.mnuInsert->isEnabled(),
                               ui.mnuEdit->isEnabled()}),
                  std::vector({on, on, !on, !on, !on}));
        EXPECT_TRUE(ui.mnuMormat->isEnabled() && ui.mnuFile->isEnabled() &&
                    ui.btnGenerate->isEnabled() && ui.Toolbar1->isEnabled());
    }
}

TEST(Designer, NewAndExitAskTheFrameDoesNot) {
    Designer d;
    d.Result().setDocumentHTML("<p>drawn</p>");
    d.m.ui.tagbar->setDocumentHTML("<p>field</p>");
    d.program.prompts.answers = {vbNo, vbYes, vbNo, vbYes};
    d.m.ui.mnuNew->trigger();
    EXPECT_TRUE(d.Result().documentHTML().contains("drawn"));
    d.m.ui.mnuNew->trigger();
    EXPECT_EQ(BodyOf(d.Result().documentHTML()), kBox + "\r\n");
    EXPECT_TRUE(d.m.ui.tagbar->documentHTML().contains("field")) << "the strip keeps its field";
    EXPECT_EQ(question(d.program),
              "Are you sure you want to start off with a new form?|Morvane: Create New?|292");

    d.m.ui.mnuExit->trigger();
    EXPECT_TRUE(d.loaded<morvane>());
    d.m.ui.mnuExit->trigger();
    EXPECT_FALSE(d.loaded<morvane>());
    EXPECT_EQ(question(d.program, 3), "Are you sure you want to exit?|Morvane: Exit?|292");

    morvane& again = d.program.forms->get<morvane>();
    again.show();
    again.window()->close();
    EXPECT_FALSE(d.loaded<morvane>());
    EXPECT_EQ(d.program.prompts.asked.size(), 4u);
}

// From each view the same design ends in that view; the page gets it at the tick.
TEST(Designer, GenerateEndsInTheViewThatOpenedTheDesigner) {
    Designer d;
    d.area().setText("ab");
    d.area().setSelStart(1);
    d.run([&] { d.zelvo.mnuMorvane(); });
    d.m.ui.mnuHTMLGen->trigger();
    prewizard& pre = d.program.forms->get<prewizard>();
    EXPECT_TRUE(pre.isVisible() && d.m.isVisible());
    pre.ui.OKButton->click();
    EXPECT_EQ(question(d.program), "Please fill in the required fields|Morvane|64");
    const QStringList fields = {"txtFormName=f", "txtFormAction=go.cgi", "cmbAction=get",
                                "OKButton"};
    fillIn(pre.window(), fields);
    const QString code = "<!-- Form Code by Morvane: By Orvek -->\r\n<br><form name=\"f\" "
                         "method=\"get\" action=\"go.cgi\">\r\n" +
                         kBox + "\r\n\r\n</form><br>\r\n<!-- End of form -->";
    EXPECT_EQ(d.area().text(), "a" + code + "b");
    EXPECT_FALSE(d.loaded<prewizard>());
    EXPECT_TRUE(d.m.isVisible());

    d.txtComp().setDocumentHTML("<HTML><HEAD></HEAD><BODY>x</BODY></HTML>");
    static_cast<MemoryEngine&>(d.txtComp()).setSelection(0, 0);
    d.run([&] { d.tessara.mnuMorvane(); });
    d.m.ui.btnGenerate->click();
    fillIn(d.program.forms->get<prewizard>().window(), fields);
    EXPECT_FALSE(d.txtComp().documentHTML().contains("Form Code"));
    d.tessara.ui.Timer1.fire();
    EXPECT_TRUE(d.txtComp().documentHTML().contains(code));
}

TEST(Designer, EditHtmlHidesTheDesignerUntilItsWindowGoes) {
    Designer d;
    d.m.show();
    d.m.ui.mnuEditHTML->trigger();
    MeditHTML& source = d.program.forms->get<MeditHTML>();
    EXPECT_EQ(source.ui.txtCode.text(), kBox + "\r\n");
    EXPECT_TRUE(source.isVisible() && !d.m.isVisible());
    source.ui.txtCode.setText("<p>typed</p>");
    source.ui.CancelButton->click();
    EXPECT_TRUE(d.m.isVisible());
    EXPECT_FALSE(d.Result().documentHTML().contains("typed"));

    d.m.ui.mnuEditHTML->trigger();
    d.settle();
    MeditHTML& next = d.program.forms->get<MeditHTML>();
    next.ui.txtCode.setText("<p>typed</p>");
    d.program.pickers.colors = {0x0F};
    next.ui.btnPalete->click();
    next.ui.btnClip->click();
    EXPECT_EQ(d.program.clipboard.text(), "#0F0000");
    next.ui.OKButton->click();
    EXPECT_TRUE(d.m.isVisible());
    EXPECT_TRUE(d.Result().documentHTML().contains("<p>typed</p>"));
}
