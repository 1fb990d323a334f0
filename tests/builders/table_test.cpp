#include "builderkit.h"

#include "builders/frmrow.h"
#include "builders/table.h"
#include "builders/vistbl.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

using namespace zt;
using namespace zt::test;

namespace {

// The remembered fields as the user sees them, the boxes and options as 1 or 0:
// rows, cols, padding, spacing, border, alignment, width, colour, empty table,
// specify width, pixels, percentage, remember.
QString fieldsOf(const table& t) {
    const auto on = [](const QAbstractButton* b) { return b->isChecked() ? "1" : "0"; };
    return QStringList{t.ui.txtrow.text(),     t.ui.txtcol.text(),    t.ui.txtcelpad.text(),
                       t.ui.txtcelspac.text(), t.ui.txtBorder.text(), t.ui.cmbAlign->currentText(),
                       t.ui.txtWidth.text(),   t.ui.txtColour.text(), on(t.ui.chkEmptyTable),
                       on(t.ui.chkwidth),      on(t.ui.radpixels),    on(t.ui.radpercentage),
                       on(t.ui.chkRemember)}
        .join('|');
}

void moveOver(QWidget* widget) {
    QMouseEvent move(QEvent::MouseMove, QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

void clickOn(QWidget* widget) {
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace

// The stored keys as "key=value" words.
TEST(TableLoad, RestoresTheRememberedFieldsOnlyWhenRememberIsTrue) {
    const QString designDefaults = "2|2|0|0|1|Default|100||0|1|0|1|0";
    // Keys that were never written come back with the restore's own defaults, which
    // differ from the design's in the alignment.
    const QString restoreDefaults = "2|2|0|0|1|left|100||0|1|0|1|1";
    const struct {
        QString stored, want;
    } cases[] = {
        {"", designDefaults},
        {"Remember=0 Rows=9", designDefaults},
        {"Remember=1", restoreDefaults},
        {"Remember=true PixOrPer=True", restoreDefaults},
        // A false option leaves neither option on.
        {"Remember=1 Rows=5 Cols=3 CelPad=4 CelSpac=2 Border=0 Align=Centre Width=640 "
         "Colour=#00FF00 EmptyTable=1 SpecWidth=0 PixOrPer=false",
         "5|3|4|2|0|Centre|640|#00FF00|1|0|0|0|1"},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        for (const QString& pair : c.stored.split(' ', Qt::SkipEmptyParts))
            v.store("Table", pair.section('=', 0, 0), pair.section('=', 1));
        const table& t = v.program.forms->get<table>();
        EXPECT_EQ(fieldsOf(t), c.want) << c.stored.toStdString();
        EXPECT_FALSE(t.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_TRUE(v.program.failures.empty()) << c.stored.toStdString();
    }
}

TEST(TableLoad, ARestoredClearWidthBoxDisablesTheWidthAndANonNumberIsRefused) {
    BuilderViews v;
    v.store("Table", "Remember", "1");
    v.store("Table", "SpecWidth", "0");
    v.store("Table", "Rows", "two");
    table& t = v.program.forms->get<table>();
    EXPECT_EQ(t.ui.txtrow.text(), "");
    EXPECT_EQ(v.asked(), QStringList{"Please enter only valid numerical data"});
    EXPECT_FALSE(t.ui.txtWidthView->isEnabled() || t.ui.radpixels->isEnabled() ||
                 t.ui.radpercentage->isEnabled());
    t.ui.chkwidth->setChecked(true);
    EXPECT_TRUE(t.ui.txtWidthView->isEnabled() && t.ui.radpixels->isEnabled());
}

// Through the menus: fields emptied to 0 in the dialog, the advanced choices kept
// while their group is hidden, the hints, and the remembered keys written.
TEST(TableDialog, FromEachViewByItsMenu) {
    BuilderViews v;
    v.area().setText("[]");
    v.area().setSelStart(1);
    v.zelvo.ui.mnuinstable->trigger();
    table& t = v.program.forms->get<table>();
    ASSERT_TRUE(t.isVisible());
    fillIn(t.window(), {"txtrow=1", "txtcelpad=", "cmbAlign=Centre", "chkAdvanced"});
    t.ui.cmbCaptionSide->setCurrentIndex(1);
    t.ui.chkAdvanced->click();
    EXPECT_FALSE(t.ui.frmAdvanced->isVisible());
    moveOver(t.ui.lblEmptyCells);
    EXPECT_EQ(t.ui.Status->text(), "Sets whether or not to show empty cells in a table (only "
                                   "for the \"separated borders\" model) ");
    t.ui.chkRemember->setChecked(true);
    t.ui.OKButton->click();
    EXPECT_EQ(v.area().text(),
              "[<div align=\"center\">\r\n<TABLE border=\"1\" width=\"100%\" style=\" "
              "caption-side: bottom;\">\r\n\r\n<tr>\r\n   <td> Row 1 Col 1</td>\r\n"
              "   <td> Row 1 Col 2</td>\r\n</tr>\r\n</TABLE>\r\n</div>]");
    EXPECT_EQ(v.setting("Table", "CelPad"), "0") << "the emptied field was set to 0";
    EXPECT_EQ(v.setting("Table", "Align"), "Centre");

    v.tessara.ui.mnuInsTable->trigger();
    table& remembered = v.program.forms->get<table>();
    EXPECT_EQ(remembered.ui.cmbCaptionSide->currentIndex(), -1) << "styles are not remembered";
    remembered.ui.chkEmptyTable->setChecked(true);
    v.page().selectText("one");
    remembered.ui.OKButton->click();
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              "<div align=\"center\">\r\n<TABLE border=\"1\" width=\"100%\">\r\n\r\n<tr>\r\n"
              "   <td> </td>\r\n   <td> </td>\r\n</tr>\r\n</TABLE>\r\n</div> two three");
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(TableDialog, AnEmptyCountPassesWhileTypingAndFailsAtOk) {
    BuilderViews v;
    v.area().setText("x");
    v.zelvo.ui.mnuinstable->trigger();
    table& t = v.program.forms->get<table>();
    t.ui.txtcol.setText("");
    EXPECT_TRUE(v.program.prompts.asked.empty());
    t.ui.OKButton->click();
    EXPECT_EQ(failure(v.program), RuntimeFailure::TypeMismatch);
    EXPECT_EQ(v.area().text(), "x");
}

TEST(RowDialog, DigitsOnlyAndTheRowsGoToTheSourceView) {
    BuilderViews v;
    v.area().setText("<TABLE></TABLE>");
    v.area().setSelStart(7);
    v.zelvo.ui.mnuinsrowcol->trigger();
    frmrow& r = v.program.forms->get<frmrow>();
    EXPECT_EQ(r.ui.cmbcolour->currentText(), "none");
    r.ui.txtrowView->setFocus();
    r.ui.txtrowView->selectAll();
    type(r.ui.txtrowView, "1.");
    EXPECT_EQ(r.ui.txtrow.text(), "1");
    EXPECT_EQ(v.asked(), QStringList{"Invalid Value"});
    r.ui.txtcol.setText("-");
    EXPECT_EQ(r.ui.txtcol.text(), "2") << "nothing left: back to 2";
    // Black empties the list's text; a cancel takes the earlier colour again.
    v.program.pickers.colors = {0, 0x00FF00, std::nullopt};
    const int rows = r.ui.cmbcolour->count();
    r.ui.btnMoreColours->click();
    EXPECT_EQ(r.ui.cmbcolour->currentText(), "");
    r.ui.btnMoreColours->click();
    r.ui.cmbcolour->setEditText("none");
    r.ui.btnMoreColours->click();
    EXPECT_EQ(r.ui.cmbcolour->count(), rows) << "a picked colour is no row";
    r.ui.OKButton->click();
    EXPECT_EQ(v.area().text(), "<TABLE><tr bgcolor=\"#00FF00\">\r\n   <td> New Row 1 Col 1</td>"
                               "\r\n   <td> New Row 1 Col 2</td>\r\n</tr></TABLE>");
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(VisualTable, TheGridFollowsThePointerAndAClickInserts) {
    BuilderViews v;
    v.area().setText("");
    v.zelvo.ui.mnuVisTbl->trigger();
    visTbl& g = v.program.forms->get<visTbl>();
    const auto lit = [&] {
        QString cells;
        for (int i = 0; i < 100; ++i)
            cells += g.isLit(i) ? QString::number(i) + " " : "";
        return cells.trimmed();
    };
    moveOver(g.ui.num11[23]);
    EXPECT_EQ(lit(), "0 1 2 3 10 11 12 13 20 21 22 23");
    EXPECT_TRUE(g.ui.Timer1.enabled());
    moveOver(g.ui.num11[1]);
    EXPECT_EQ(lit(), "0 1 2 3 10 11 12 13 20 21 22 23") << "left over until the tick";
    g.ui.Timer1.fire();
    EXPECT_EQ(lit(), "0 1");
    moveOver(g.window());
    EXPECT_EQ(lit(), "");
    EXPECT_FALSE(g.ui.Timer1.enabled());

    clickOn(g.ui.num11[5]);
    EXPECT_EQ(v.area().text().count("<tr>"), 6) << "cell 5 gives six by six";

    v.tessara.ui.mnuVisTbl->trigger();
    v.page().selectText("two");
    clickOn(v.program.forms->get<visTbl>().ui.num11[10]);
    v.tick();
    EXPECT_EQ(v.page().bodyContent(),
              "one <TABLE border=1>\r\n<tr>\r\n   <td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</td>\r\n"
              "</tr>\r\n<tr>\r\n   <td>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</td>\r\n</tr>\r\n"
              "</TABLE> three");
    EXPECT_TRUE(v.program.failures.empty());
}
