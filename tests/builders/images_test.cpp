#include "builderkit.h"

#include "builders/frmimage.h"
#include "builders/imagegen.h"
#include "builders/imagepreview.h"
#include "builders/rollover.h"
#include "builders/rollovergen.h"
#include "help/frmhelp.h"
#include "pagehelpers/jsconsole.h"
#include "support/failureof.h"

#include <QCheckBox>
#include <QImage>
#include <QPushButton>
#include <QToolButton>

using namespace zt;
using namespace zt::test;

TEST(Generators, ImageTag) {
    const struct {
        ImageValues values;
        QString tag;
    } cases[] = {
        {{.source = "a.gif"}, R"(<IMG src="a.gif" align="Left" Border="0">)"},
        // Height and width count only with dimensions; empty fields are left out.
        {{.source = "",
          .alt = "x",
          .height = "50",
          .widthPercent = true,
          .align = "",
          .border = ""},
         R"(<IMG src="" alt="x">)"},
        {{.source = R"(a" b)", .dimensions = true, .widthPercent = true, .align = "AbsMiddle"},
         R"(<IMG src="a" b" align="AbsMiddle" Border="0" height="" width="%">)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(imageTag(c.values), c.tag);
}

TEST(Generators, RolloverPageRewritesTheWholePage) {
    const QString& s = rolloverScript();
    ASSERT_EQ(s.size(), 1089);
    EXPECT_EQ(s.count("\r\n"), 41);

    const RolloverValues v{.name = "n", .firstImage = "a.gif", .secondImage = "b.gif"};
    const QString a = R"~(<a href="" onMouseOut="ZLV_swapImgRestore()" )~"
                      R"~(onMouseOver="ZLV_swapImage('n','','b.gif',1)">)~"
                      R"(<img name="n" border="0" src="a.gif"></a>)";
    const QString load = R"~( onLoad="ZLV_preloadImages('b.gif')")~";
    const QString once = "<html>\r\n<HEAD>" + s + "\r\n</HEAD>\r\n<body" + load + ">\r\n\r\n" + a;
    const struct {
        const char* what;
        QString page;
        RolloverValues values;
        QString after;
        int failure = 0;
    } cases[] = {
        {"an empty page", "", v, once},
        {"a whole page: the link ahead of <html>",
         "<HTML><Head><title>t</title></HEAD><Body>x",
         {.name = "n", .firstImage = "a.gif", .secondImage = "b.gif", .link = "p.html"},
         QString(a).replace(R"(href="")", R"(href="p.html")") + "<HTML><Head>" + s +
             "<title>t</title></HEAD><Body" + load + ">x"},
        {"a second rollover: one script, one more preload",
         once,
         {.name = "m", .firstImage = "c.gif", .secondImage = "d.gif"},
         QString(a)
                 .replace("'n'", "'m'")
                 .replace(R"("n")", R"("m")")
                 .replace("b.gif", "d.gif")
                 .replace("a.gif", "c.gif") +
             QString(once).replace("'b.gif')", "'b.gif','d.gif')")},
        {"a head added after <html>, the link behind its length", "<html><BODY>x", v,
         "<html>\r\n<HEAD>" + s + "\r\n\r\n<" + a + "/HEAD><BODY" + load + ">x"},
        {"a body added after </head>", "<head></head>x", v,
         "<head>" + s + "</he" + a + "ad>\r\n<body" + load + ">\r\nx"},
        {"an onload anywhere after the body takes the image",
         "<head></head><body><p onload=\"f()\">", v,
         a + "<head>" + s + "</head><body><p onload=\"f(,'b.gif')\">"},
        {"an onload without )", "<head></head><body onload=f>", v, "", 380},
        {"a head without an end nor a body", "<head>x", v, "", 5},
        {"a page past 16 bits", QString(32768, 'x'), v, "", 6},
    };
    for (const auto& c : cases) {
        QString after;
        EXPECT_EQ(failureOf([&] { after = rolloverPage(c.page, c.values); }), c.failure) << c.what;
        EXPECT_EQ(after, c.after) << c.what;
    }
}

TEST(ImagePreview, ASourceIsLookedForBesideTheDocument) {
    const struct {
        QString source, document, file;
    } cases[] = {
        {"pics/a.png", "/home/u/site/index.html", "/home/u/site/pics/a.png"},
        {"pics/a.png", "", ""},
        {"/srv/a.png", "", "/srv/a.png"},
        {"file:///srv/a%20b.png", "/home/u/x.html", "/srv/a b.png"},
        {"http://example.org/a.png", "/home/u/x.html", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(previewFile(c.source, c.document), c.file) << c.source.toStdString();
}

namespace {

frmImage& image(BuilderViews& v) {
    return v.program.forms->get<frmImage>();
}

} // namespace

// From the source view the first image replaces the selection; the dialog comes
// back fresh and callerless, so the next one goes to the console's text.
TEST(ImageDialog, InsertsReopensAndSendsTheNextToTheConsole) {
    BuilderViews v;
    v.area().setText("one two three");
    v.selectInArea("two");
    QImage(8, 8, QImage::Format_RGB32).save(v.program.scratch("pic.png"));
    v.tag() = v.program.scratch("page.html");
    v.run([&] { v.zelvo.mnuImage(); });
    frmImage& d = image(v);
    EXPECT_EQ(d.caption(), "Image : Zelvo");
    v.click(d.ui.btnHelp);
    EXPECT_TRUE(v.program.forms->get<frmHelp>().ui.txtHelp.text().startsWith("INSERT IMAGE"));
    EXPECT_FALSE(d.ui.txtHeightView->isEnabled());

    v.click(d.ui.btnInsert);
    d.ui.txtSource.setText("nothing.png");
    EXPECT_FALSE(d.ui.imgPreview->showsPicture());
    d.ui.txtSource.setText("pic.png");
    EXPECT_TRUE(d.ui.imgPreview->showsPicture());
    v.click(d.ui.chkDimensions);
    EXPECT_TRUE(d.ui.chkWPercentage->isEnabled());
    d.ui.txtHeight.setText("50");
    v.click(d.ui.btnInsert);
    EXPECT_EQ(v.asked(), QStringList({"No image was selected", "Height or Width not specified"}));
    EXPECT_EQ(question(v.program, 1), "Height or Width not specified|Assistant: Zelvo|48");

    fillIn(d.window(), {"chkHPercentage", "txtWidth=20"});
    // Up adds one, down stops at 0, an empty spacing counts as 0 first.
    for (QToolButton* spin : {d.ui.updBorder.up, d.ui.updBorder.up, d.ui.updBorder.down,
                              d.ui.updHSpace.down, d.ui.updHSpace.up})
        v.click(spin);
    d.ui.txtVSpace.setText("");
    v.click(d.ui.updVSpace.down);
    EXPECT_EQ(d.ui.txtBorder.text() + d.ui.txtHSpace.text() + d.ui.txtVSpace.text(), "110");
    fillIn(d.window(), {"txtAlt=A", "cmbAlign=Middle"});
    v.click(d.ui.btnInsert);
    EXPECT_EQ(
        v.area().text(),
        R"(one <IMG src="pic.png" align="Middle" Border="1" height="50%" width="20" alt="A"> three)");

    frmImage& again = image(v);
    EXPECT_TRUE(again.isVisible());
    EXPECT_EQ(again.ui.compOrEdit.text() + again.ui.txtSource.text() + again.ui.txtBorder.text(),
              "0");
    again.ui.txtSource.setText("b.png");
    v.click(again.ui.btnInsert);
    EXPECT_EQ(v.program.forms->get<JSConsole>().ui.theCode.text(),
              R"(<IMG src="b.png" align="Left" Border="0" )");
    EXPECT_TRUE(v.area().text().endsWith("> three"));
    v.click(image(v).ui.btnClose);
    EXPECT_FALSE(v.loaded<frmImage>());
    EXPECT_EQ(failure(v.program), 0);
}

// Opened by the console the tag lands open at its selection; Browse fills in the
// chosen path and a cancel changes nothing; an empty spacing fails at Insert.
TEST(ImageDialog, FromTheConsoleBrowseAndAnEmptySpacing) {
    BuilderViews v;
    TextControl& code = v.program.forms->get<JSConsole>().ui.theCode;
    code.setText("<p></p>");
    code.setSelStart(3);
    v.program.pickers.files = {"/srv/pics/c.jpg", std::nullopt};
    v.run([&] { dialogFor<frmImage>(*v.program.forms, caller::kConsole).show(); });
    frmImage& d = image(v);
    v.click(d.ui.btnSource);
    EXPECT_EQ(v.program.pickers.asked.at(0).file.filter.section('|', 0, 0), "JPEG Files (*.jpg)");
    v.click(d.ui.btnSource);
    EXPECT_EQ(d.ui.txtSource.text(), "/srv/pics/c.jpg");
    EXPECT_TRUE(d.ui.comdlg.fileName.isEmpty());
    v.click(d.ui.btnInsert);
    EXPECT_EQ(code.text(), R"(<p><IMG src="/srv/pics/c.jpg" align="Left" Border="0" </p>)");

    image(v).ui.txtSource.setText("x.gif");
    image(v).ui.txtHSpace.setText("");
    v.click(image(v).ui.btnInsert);
    EXPECT_EQ(failure(v.program), 13);
    EXPECT_EQ(code.text().count("<IMG"), 1);
}

// The page selected whole is rewritten around the link; a blank never stays in the
// name; the picker's last file comes back on a cancel.
TEST(RolloverDialog, RewritesTheSelectedPage) {
    BuilderViews v;
    const QString page = "<html><head></head><body></body></html>";
    v.area().setText(page);
    v.area().setSelLength(page.size());
    v.run([&] { v.zelvo.mnuRollImage(); });
    rollover& d = v.program.forms->get<rollover>();
    EXPECT_EQ(d.caption(), "Insert Rollover Images : Zelvo");
    v.click(d.ui.insert);
    EXPECT_EQ(question(v.program), "One or more required fields missing|Assistant: Zelvo|48");

    d.ui.txtNameView->setFocus();
    type(d.ui.txtNameView, "my pic");
    EXPECT_EQ(d.ui.txtName.text(), "mypic");
    v.program.pickers.files = {"/srv/a.gif", std::nullopt};
    v.click(d.ui.btnBrowseFirst);
    v.click(d.ui.btnBrowseSecond);
    EXPECT_EQ(d.ui.txtSecondImage.text(), "/srv/a.gif");
    d.ui.txtSecondImage.setText("b.gif");
    v.click(d.ui.insert);
    EXPECT_FALSE(v.loaded<rollover>());
    // The generator itself is pinned by its own table.
    EXPECT_EQ(
        v.area().text(),
        rolloverPage(page, {.name = "mypic", .firstImage = "/srv/a.gif", .secondImage = "b.gif"}));
    EXPECT_EQ(v.asked().size(), 1u);
    EXPECT_EQ(failure(v.program), 0);
}
