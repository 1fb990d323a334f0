#include "views.h"

#include "designer/bodyof.h"
#include "layout/lboxprops.h"
#include "layout/ledithtml.h"
#include "layout/lmanager.h"

#include "platform/engine/memoryengine.h"
#include "platform/prompts.h"

#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

struct Layouts : Views {
    LManager& lm = program.forms->get<LManager>();
    PageEngine& result() { return *lm.ui.result; }
    LBoxProps& props() { return program.forms->get<LBoxProps>(); }
    QString strip() { return BodyOf(lm.ui.tagbar->documentHTML()).trimmed(); }
};

const QString kBox = QStringLiteral(
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px %2; BORDER-TOP: 1px %2; Z-INDEX: %1; "
    "LEFT: %3px; BORDER-LEFT: 1px %2; WIDTH: %5px; BORDER-BOTTOM: 1px %2; POSITION: absolute; "
    "TOP: %4px; HEIGHT: %6px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>");

} // namespace

// Each sample is the run of its boxes in the stored order, then its ending; each
// thumbnail shows a picture of its own.
TEST(LayoutManager, SamplesAreTheirBoxesAndEachHasItsOwnThumbnail) {
    struct B {
        int z;
        const char* border;
        int l, t, w, h;
    };
    const B left{103, "dotted", 11, 84, 128, 444}, right{103, "dotted", 532, 84, 128, 444};
    // Between the banner and the footer, logo and navigation strip.
    const std::vector<B> columns[] = {
        {left, {104, "ridge", 142, 84, 517, 444}},
        {right, {104, "ridge", 11, 84, 517, 444}},
        {right, {104, "ridge", 145, 84, 382, 444}},
        {{104, "ridge", 15, 84, 642, 444}},
    };
    const auto text = [](const std::vector<B>& boxes) {
        QString run;
        for (const B& b : boxes)
            run += kBox.arg(b.z).arg(b.border).arg(b.l).arg(b.t).arg(b.w).arg(b.h);
        return run;
    };
    Layouts v;
    const TextControl* texts[] = {&v.lm.ui.type1, &v.lm.ui.type2, &v.lm.ui.type3, &v.lm.ui.type4};
    for (int n = 1; n <= 4; ++n) {
        QString want = text({{101, "solid", 57, 10, 599, 47}}) + text(columns[n - 1]) +
                       text({{105, "outset", 8, 535, 651, 30},
                             {106, "solid", 13, 10, 40, 30},
                             {107, "groove", 13, 61, 645, 18}});
        want +=
            n == 3 ? text({{103, "dotted", 12, 84, 128, 444}}) + "\r\n<P>&nbsp;</P>\r\n" : "\r\n";
        EXPECT_EQ(texts[n - 1]->text().toStdString(), want.toStdString()) << n;
        v.lm.ui.PicType[n]->click();
        EXPECT_TRUE(v.result().documentHTML().contains(want.trimmed())) << n;
    }
    v.lm.ui.PicType[0]->click();
    EXPECT_EQ(BodyOf(v.result().documentHTML()).trimmed(), "");
    EXPECT_EQ(v.lm.ui.PicType[0]->toolTip(), "Blank");

    QList<QImage> pictures;
    for (QToolButton* picture : v.lm.ui.PicType) {
        const QImage image = picture->icon().pixmap(92, 78).toImage();
        EXPECT_FALSE(pictures.contains(image)) << picture->objectName().toStdString();
        pictures << image;
    }
    EXPECT_EQ(pictures[0].pixelColor(46, 39), QColor(Qt::white));
}

// Shared fields are written type first, a side's own thickness first; the options
// alone decide which count. The arrows step the thickness with a floor at 0 and fail
// on a field that holds no number; a colour of 0 empties its box.
TEST(LayoutManager, BoxPropertiesWriteTheBorderOrderOfTheirOption) {
    const QString tail =
        "WIDTH: 40px; POSITION: relative; TOP: 0px; HEIGHT: 30px; BACKGROUND-COLOR: %1\">New "
        "Layout Box</div>";
    const struct {
        bool individual;
        QString name;
        quint32 colour; // picked for the background and the left side
        QString borders;
    } cases[] = {
        {false, "", 0,
         "<div id=\"LayoutBox\" style=\"BORDER-LEFT: solid 1 ;BORDER-RIGHT: solid 1 ;"
         "BORDER-TOP: solid 1 ;BORDER-BOTTOM: solid 1 ;"},
        {true, "", 0,
         "<div id=\"LayoutBox\" style=\"BORDER-LEFT: 1 solid ;BORDER-RIGHT: 1 solid ;"
         "BORDER-TOP: 1 solid ;BORDER-BOTTOM: 1 solid ;"},
        {true, "menu", 0x0000FF,
         "<div id=\"menu\" style=\"BORDER-LEFT: 3 dashed #FF0000;BORDER-RIGHT: 0 groove red;"
         "BORDER-TOP: 1 solid ;BORDER-BOTTOM: 1 solid ;"},
        {false, "menu", 0x0000FF,
         "<div id=\"menu\" style=\"BORDER-LEFT: double 2 blue;BORDER-RIGHT: double 2 blue;"
         "BORDER-TOP: double 2 blue;BORDER-BOTTOM: double 2 blue;"},
    };
    Layouts v;
    for (const auto& c : cases) {
        LBoxProps& d = v.props();
        d.ui.txtName.setText(c.name);
        d.ui.txtBGColour.setText("old");
        v.program.pickers.colors = {c.colour, c.colour};
        d.ui.btnBGColour->click();
        d.ui.btnLeftColour->click();
        // Filled on both sides, the option picks; or left at the defaults.
        if (c.colour) {
            d.ui.cmbAllBorderType->setCurrentText("double");
            d.ui.txtAllThickness.setText("2");
            d.ui.txtAllColour.setText("blue");
            d.ui.cmbIndiLeftType->setCurrentText("dashed");
            d.ui.UDLeft.up->click();
            d.ui.UDLeft.up->click();
            d.ui.cmbIndiRightType->setCurrentText("groove");
            d.ui.txtRightColour.setText("red");
            d.ui.UDRight.down->click();
            d.ui.UDRight.down->click();
        }
        (c.individual ? d.ui.radIndiBorder : d.ui.radAllBorder)->setChecked(true);
        d.ui.OKButton->click();
        v.program.forms->collectUnloaded();
        EXPECT_EQ(v.strip().toStdString(),
                  (c.borders + tail.arg(c.colour ? "#FF0000" : "")).toStdString());
        EXPECT_FALSE(v.program.forms->isLoaded<LBoxProps>());
    }
    LBoxProps& d = v.props();
    d.ui.txtTopThickness.setText("2px");
    d.ui.UDTop.up->click();
    EXPECT_EQ(failure(v.program), RuntimeFailure::TypeMismatch);
    d.ui.CancelButton->click();
    EXPECT_FALSE(v.program.forms->isLoaded<LBoxProps>());
    EXPECT_TRUE(v.strip().startsWith("<div id=\"menu\" style=\"BORDER-LEFT: double 2 blue;"));
}

// A layout file is the body and CR LF in Windows-1252. A file of 32767 bytes loads; a
// longer one changes nothing and says nothing.
TEST(LayoutManager, LoadAndSaveLayoutFiles) {
    Layouts v;
    const QString path = v.program.scratch("page.lyt");
    v.result().setDocumentHTML("<DIV>caf\u00e9</DIV>");
    v.program.pickers.files = {std::nullopt, path};
    v.lm.ui.btnSaveLayout->click();
    EXPECT_FALSE(QFile::exists(path));
    v.lm.ui.btnSaveLayout->click();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "<DIV>caf\xe9</DIV>\r\n\r\n");
    EXPECT_EQ(v.program.pickers.asked[1].file.filter, "Layout Manager Files (*.lyt)|*.lyt");

    const QString fits = v.file("fits.lyt", "<i>" + QString(32764, 'y'));
    const QString over = v.file("over.lyt", "<u>" + QString(32765, 'z'));
    v.program.pickers.files = {over, fits};
    v.lm.ui.btnLoadLayout->click();
    EXPECT_TRUE(v.result().documentHTML().contains("caf\u00e9"));
    v.lm.ui.btnLoadLayout->click();
    EXPECT_TRUE(v.result().documentHTML().contains("<i>yyy"));
    EXPECT_TRUE(v.program.failures.empty() && v.program.prompts.asked.empty());
}

// Cancel goes back with nothing changed. From the visual view Yes replaces the page
// and No inserts at the caret on the tick; from the source view both insert at the
// caret, in place of the selection. The Layout Manager then goes.
TEST(LayoutManager, UseLayoutAsksThenDeliversByTheViewThatOpenedIt) {
    const QString page = "<HTML><HEAD></HEAD><BODY><P>xy</P></BODY></HTML>";
    const struct {
        bool visual;
        int answer;
        QString source; // the source text, or for the visual view the page's body
    } cases[] = {
        {false, vbCancel, "abc"},
        {false, vbYes, "a<DIV>L</DIV>\r\nc"},
        {false, vbNo, "a<DIV>L</DIV>\r\nc"},
        {true, vbCancel, "<P>xy</P>"},
        {true, vbYes, "<DIV>L</DIV>"},
        {true, vbNo, "<P>x<DIV>L</DIV>\r\ny</P>"},
    };
    for (const auto& c : cases) {
        Layouts v;
        v.area().setText("abc");
        v.area().setSelStart(1);
        v.area().setSelLength(1);
        v.txtComp().setDocumentHTML(page);
        static_cast<MemoryEngine&>(v.txtComp()).setSelection(4, 0);
        v.run([&] { c.visual ? v.tessara.mnuLayoutManager() : v.zelvo.mnuLayoutManager(); });
        v.result().setDocumentHTML("<DIV>L</DIV>");
        v.program.prompts.answers = {c.answer};
        v.lm.ui.btnUseLayout->click();
        if (v.tessara.ui.Timer1.enabled())
            v.tessara.ui.Timer1.fire();
        EXPECT_EQ(question(v.program), "Would you like to replace existing page with new "
                                       "layout?\r\n\r\nYes to replace\r\nNo to insert in existing "
                                       "page\r\nCancel to go back|Layout Manager|35");
        const QString got =
            c.visual ? BodyOf(v.txtComp().documentHTML()).trimmed() : v.area().text();
        EXPECT_EQ(got.toStdString(), c.source.toStdString()) << c.visual << c.answer;
        EXPECT_EQ(v.program.forms->isLoaded<LManager>(), c.answer == vbCancel);
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// The Layout Manager hides while its text is edited and comes back however the
// editor goes; only OK changes the layout.
TEST(LayoutManager, EditHtmlHidesTheManagerUntilTheEditorGoes) {
    Layouts v;
    v.lm.show();
    v.result().setDocumentHTML("<DIV>a</DIV>");
    for (const char* way : {"cancel", "frame", "ok"}) {
        v.lm.ui.btnEditHTML->click();
        LEditHTML& e = v.program.forms->get<LEditHTML>();
        EXPECT_EQ(e.ui.txtCode.text().trimmed(), "<DIV>a</DIV>") << way;
        EXPECT_TRUE(e.isVisible() && !v.lm.isVisible()) << way;
        e.ui.txtCode.setText("<DIV>b</DIV>");
        if (way[0] == 'c')
            e.ui.CancelButton->click();
        else if (way[0] == 'f')
            e.window()->close();
        else
            e.ui.OKButton->click();
        v.program.forms->collectUnloaded();
        EXPECT_TRUE(v.lm.isVisible()) << way;
        EXPECT_FALSE(v.program.forms->isLoaded<LEditHTML>()) << way;
    }
    EXPECT_TRUE(v.result().documentHTML().contains("<DIV>b</DIV>"));
}
