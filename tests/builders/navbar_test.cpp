#include "builderkit.h"

#include "navbar/navgen.h"
#include "navbar/navlisturls.h"
#include "navbar/navmaker.h"

#include <QCryptographicHash>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

QByteArray sha1(const QString& text) {
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
}

QString rows(const QListWidget* list) {
    QStringList all;
    for (int i = 0; i < list->count(); ++i)
        all << list->item(i)->text();
    return all.join(',');
}

} // namespace

// The hashes are of texts made apart from this program, from the listing of the
// template and its order of replacements.
TEST(NavGenerators, TheTemplateAndWholeCodesAreExact) {
    BuilderViews v;
    const struct {
        const char* what;
        QString text;
        qsizetype length;
        QByteArray sha1;
    } cases[] = {
        {"template", navTemplate(), 1730, "6211a703c500d628f76298d7e933e64674d9d4bd"},
        {"dialog defaults", v.program.forms->get<NavMaker>().buildCode(), 1387,
         "24bebaa9c5612cca638612e04995766a2a4d7144"},
        {"each value its own", navCode({"v01", "v02", "v03", "v04", "v05", "v06", "v07", "v08",
                                        "v09", "v10", "v11", "v12", "v13", "v14", "v15", "v16",
                                        "v17", "v18", "v19", "v20", "v21", "v22", "v23"}),
         1415, "cdd1ac738755a03e173575000a39004b4d7c9df7"},
        // A value that spells a later placeholder is replaced too, an earlier one not.
        {"chained",
         navCode({.linkColour = "getHColour", .hColour = "red", .vbgColour = "getLinkColour"}),
         1353, "2c7568304575154f154c8164b457e8e54178ee6f"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.text.size(), c.length) << c.what;
        EXPECT_EQ(sha1(c.text), c.sha1) << c.what << "\n" << c.text.toStdString();
    }
}

TEST(NavGenerators, BarStyleBlockAndItsPlace) {
    EXPECT_EQ(navBar({}, {}), "<br><div id=\"navigation\"><ul></ul></div><br>");
    // Nothing is escaped, and a point without its address row links to nothing.
    EXPECT_EQ(navBar({"A&B", ""}, {"a\"b"}), "<br><div id=\"navigation\"><ul><li id=\"lBasic\"><a "
                                             "href=\"a\"b\">A&B</a></li>\r\n<li id=\"lBasic\"><a "
                                             "href=\"\"></a></li>\r\n</ul></div><br>");
    // The style block of a code, and where it goes in a text.
    const struct {
        QString text, block;
        int at;
    } cases[] = {
        {"<HTML><HEAD><style>x</style>\r\n<div>", "<HTML><HEAD><style>x</style>", 12},
        {"<html>\r\n<Head></STYLE></style></style>", "<html>\r\n<Head></STYLE></style>", 14},
        {"<body>no end of style", "<body>n", 5},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(navStyleBlock(c.text), c.block) << c.text.toStdString();
        EXPECT_EQ(navStylePosition(c.text), c.at) << c.text.toStdString();
    }
}

namespace {

void click(BuilderViews& v, QAbstractButton* button) {
    v.run([&] { button->click(); });
}

} // namespace

// The preview follows the fields only on Preview; Proceed hands the code on. The bar
// goes in at the caret of the view that opened the creator, the style just behind
// <head> in the source text, and the page is refreshed from it before the tick.
TEST(NavBar, FromEachViewTheBarGoesAtTheCaretAndTheStyleBehindTheHead) {
    const QString bar = R"(<br><div id="navigation"><ul><li id="lBasic"><a href="index.html">)"
                        "Home</a></li>\r\n<li id=\"lBasic\"><a href=\"b.html\">B</a></li>\r\n"
                        "</ul></div><br>";
    for (const bool fromPage : {false, true}) {
        SCOPED_TRACE(fromPage ? "visual view" : "source view");
        BuilderViews v;
        v.area().setText("<HTML><HEAD><TITLE>t</TITLE></HEAD><BODY>one two three</BODY></HTML>");
        v.selectInArea("two");
        v.page().selectText("two");
        v.run([&] { (fromPage ? v.tessara.ui.mnuNavigator : v.zelvo.ui.mnuNavigator)->trigger(); });
        ASSERT_TRUE(shown("NavMaker"));
        NavMaker& maker = v.program.forms->get<NavMaker>();
        PageEngine& preview = *maker.ui.Result;
        fillIn(maker.window(), {"txtBasicBGColour=navy", "cmbLinkHBorderType=groove"});
        EXPECT_FALSE(preview.documentHTML().contains("navy"));
        click(v, maker.ui.btnPreview);
        EXPECT_TRUE(preview.documentHTML().contains("\tbackground-color: navy;"));
        click(v, maker.ui.UDLink.up);

        click(v, maker.ui.btnProceed);
        v.settle();
        EXPECT_FALSE(v.loaded<NavMaker>());
        ASSERT_TRUE(shown("NavListURLs"));
        NavListURLs& links = v.program.forms->get<NavListURLs>();
        const QString code = links.ui.txtCode.text();
        EXPECT_TRUE(code.contains("\tborder:  3 outset;\r\n") && code.contains(" 1 groove;"));
        v.program.prompts.inputs = {"index.html", "b.html"};
        type(links.ui.txtPointsView, "Home");
        v.run([&] { press(links.ui.txtPointsView, Qt::Key_Return); });
        fillIn(links.window(), {"txtPoints=B", "btnAdd", "btnInsert"});
        v.settle();

        const QString style = code.left(code.indexOf("</style>") + 8);
        EXPECT_EQ(v.area().text(), "<HTML><HEAD>" + style + "<TITLE>t</TITLE></HEAD><BODY>one " +
                                       (fromPage ? "two" : bar) + " three</BODY></HTML>");
        EXPECT_NE(v.zelvo.isVisible(), fromPage);
        EXPECT_TRUE(v.page().documentHTML().contains(style));
        if (fromPage) {
            v.tick();
            EXPECT_TRUE(v.page().documentHTML().contains(bar + "one two three"));
        }
        EXPECT_EQ(failure(v.program), 0);
    }
}

// Add asks for the address with one offered and says so in a plain box when none is
// given; Down with no row selected leaves the lists one apart; Remove and Clear ask
// as the assistant.
TEST(NavBar, TheLinksAndTheirFailures) {
    BuilderViews v;
    v.run([&] { v.zelvo.ui.mnuNavigator->trigger(); });
    click(v, v.program.forms->get<NavMaker>().ui.btnProceed);
    NavListURLs& links = v.program.forms->get<NavListURLs>();
    v.program.prompts.inputs = {"", "a", "b"};
    fillIn(links.window(),
           {"txtPoints=X", "btnAdd", "txtPoints=A", "btnAdd", "txtPoints=A", "btnAdd", "btnDown"});
    EXPECT_EQ(rows(links.ui.listPoints) + '/' + rows(links.ui.listURL), "A,,A/a,b");
    v.program.prompts.answers = {vbOK, vbYes};
    fillIn(links.window(), {"btnRemove", "btnClear"});
    const auto& asked = v.program.prompts.asked;
    ASSERT_EQ(asked.size(), 6u);
    EXPECT_EQ(asked[0].title, "Enter address/URL");
    EXPECT_TRUE(asked[0].defaultText.startsWith("http"));
    EXPECT_EQ(question(v.program, 1), "Valid URL was not entered||0");
    EXPECT_EQ(question(v.program, 4), "No point selected to remove. Please click on a point in the "
                                      "options list|Assistant: Zelvo|48");
    EXPECT_EQ(question(v.program, 5),
              "Are you sure you wish to clear the list?|Assistant: Zelvo|292");
    EXPECT_EQ(rows(links.ui.listPoints) + '/' + rows(links.ui.listURL), "/");
    EXPECT_EQ(failure(v.program), 0);
}

// An UpDown reads its field as a number; black and a first Cancel empty a colour.
TEST(NavBar, UpDownsAndColourButtons) {
    BuilderViews v;
    v.run([&] { v.zelvo.ui.mnuNavigator->trigger(); });
    NavMaker& maker = v.program.forms->get<NavMaker>();
    const struct {
        QString before;
        bool up;
        QString after;
        int failure;
    } spins[] = {{"2", true, "3", 0},       {"0", false, "0", 0},     {"1", false, "0", 0},
                 {"0.5", false, "-0.5", 0}, {"2px", true, "2px", 13}, {"", false, "", 13}};
    for (const auto& c : spins) {
        v.program.failures.clear();
        maker.ui.txtVLinkThickness.setText(c.before);
        click(v, c.up ? maker.ui.UDVLink.up : maker.ui.UDVLink.down);
        EXPECT_EQ(maker.ui.txtVLinkThickness.text(), c.after) << c.before.toStdString();
        EXPECT_EQ(failure(v.program), c.failure) << c.before.toStdString();
    }
    const struct {
        std::optional<quint32> picked;
        QString field;
    } colours[] = {{std::nullopt, ""}, {0x0F, "#0F0000"}, {std::nullopt, "#0F0000"}, {0, ""}};
    for (const auto& c : colours) {
        v.program.pickers.colors = {c.picked};
        click(v, maker.ui.btnHBGColour);
        EXPECT_EQ(maker.ui.txtHBGColour.text(), c.field);
    }
}
