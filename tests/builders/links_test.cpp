#include "builderkit.h"

#include "builders/bookmarks.h"
#include "builders/hyperlinks.h"
#include "builders/linkgen.h"
#include "builders/mail.h"
#include "builders/target.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace zt;
using namespace zt::test;

TEST(LinkGenerators, TagsAndRelationships) {
    using R = Relationship;
    const struct {
        R rel;
        const char* want;
    } rels[] = {
        {{}, R"( rel="")"},
        {{.friendship = R::Friend, .met = true, .crush = true}, R"( rel=" friend met crush")"},
        // The professional boxes add nothing; co resident and muse say other words.
        {{.colleague = true, .coWorker = true, .geography = R::CoResident, .muse = true},
         R"( rel=" co-worker met")"},
        {{.friendship = R::Contact,
          .geography = R::Neighbour,
          .family = R::Kin,
          .date = true,
          .sweetheart = true},
         R"( rel=" contact neighbor kin date sweetheart")"},
        {{.anotherAddressOfMine = true, .friendship = R::Acquaintance, .family = R::Spouse},
         R"( rel="me")"},
    };
    for (const auto& c : rels)
        EXPECT_EQ(relationshipValue(c.rel), c.want);

    EXPECT_EQ(
        hyperlinkTag({.rel = R"( rel="me")",
                      .link = "#top",
                      .screenTip = "Up",
                      .noUnderline = true,
                      .target = R"( target="_blank")",
                      .text = "x"}),
        R"(<A rel="me" href="#top" TITLE="Up" STYLE="text-decoration:none" target="_blank">x</A>)");
    EXPECT_EQ(mailTag({.address = "me@x.org", .screenTip = "Mail", .noUnderline = true}),
              R"(<A href="mailto:me@x.org" TITLE="Mail" STYLE="text-decoration:none"></A>)");
    EXPECT_EQ(bookmarkTag("top", true) + bookmarkTag("top", false),
              R"(<A name="top"></A><A name="top">&nbsp;</A>)");
}

TEST(LinkGenerators, TheScanFindsNamedAnchorsAfterTheFirstCharacter) {
    const QString far = QString(32767, u'x') + R"(<a name="late">)";
    const struct {
        QString text;
        const char* want; // tag|name rows
    } cases[] = {
        {R"(<a name="first"> <A NAME="top" id="t"> <a name=bare> <a name='single'>)",
         R"(<A NAME="top" id="t">|top <a name=bare>|bare <a name='single'>|single )"},
        {R"(x<a name="open)", ""},
        {R"(x<a name="a"><a href="b"><a  name="c">)", R"(<a name="a">|a )"},
        {far, ""},
        {far.mid(10), R"(<a name="late">|late )"},
    };
    for (const auto& c : cases) {
        QString rows;
        for (const auto& found : scanBookmarks(c.text))
            rows += found.tag + '|' + found.name + ' ';
        EXPECT_EQ(rows, c.want) << c.text.right(40).toStdString();
    }
}

// From the source view: the scan's names, the selection as text, the target's
// attribute kept by its OK, and both dialogs gone after the insert.
TEST(Links, HyperlinkWithTargetFromTheSourceView) {
    BuilderViews v;
    v.area().setText(R"(x <a name="top"></a>)");
    v.selectInArea("x");
    v.run([&] { v.zelvo.ui.mnuHyperlink->trigger(); });
    hyperlinks& d = v.program.forms->get<hyperlinks>();
    EXPECT_EQ(d.ui.txtTextToDisp.text(), "x");
    ASSERT_EQ(d.ui.listBookMarks->count(), 1);
    d.ui.listBookMarks->setCurrentRow(0);
    v.run([&] { d.listBookMarks_Click(); });
    EXPECT_EQ(d.ui.txtLink.text(), "#top");

    d.ui.txtLink.setText("");
    v.run([&] { d.ui.OKButton->click(); });
    EXPECT_EQ(v.asked(), QStringList{"The Link URL has not been mentioned"});
    d.ui.txtLink.setText("a.htm");

    v.run([&] { d.ui.btnTarget->click(); });
    target& t = v.program.forms->get<target>();
    t.ui.listTarget->setCurrentRow(3);
    v.run([&] { t.listTarget_Click(); });
    v.run([&] { t.ui.OKButton->click(); });
    EXPECT_FALSE(t.isVisible());
    v.run([&] { d.ui.OKButton->click(); });
    EXPECT_EQ(v.area().text(),
              R"(<A rel="" href="a.htm" target="_blank">x</A> <a name="top"></a>)");
    EXPECT_FALSE(v.loaded<hyperlinks>() || v.loaded<target>());
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(Links, AnotherAddressOfMineDisablesTheRelationshipAndMailTakesOver) {
    BuilderViews v;
    v.area().setText("x");
    v.selectInArea("x");
    v.run([&] { v.zelvo.mnuHyperlink(); });
    hyperlinks& d = v.program.forms->get<hyperlinks>();
    v.run([&] { d.ui.btnAdvanced->click(); });
    EXPECT_TRUE(d.ui.frndFrnd->isVisible());
    v.run([&] { d.ui.anotherLoc->click(); });
    EXPECT_FALSE(d.ui.frndFrnd->isEnabled() || d.ui.RomMuse->isEnabled());
    v.run([&] { d.ui.anotherLoc->click(); });
    EXPECT_TRUE(d.ui.frndFrnd->isEnabled());

    d.ui.txtScreentip.setText("Write");
    v.run([&] { d.ui.btnMail->click(); });
    v.settle();
    EXPECT_FALSE(v.loaded<hyperlinks>());
    mail& m = v.program.forms->get<mail>();
    EXPECT_EQ(m.ui.txtTextToDisp.text() + m.ui.txtScreentip.text(), "xWrite");
    v.run([&] { m.ui.OKButton->click(); });
    EXPECT_EQ(v.asked(), QStringList{"The E-Mail address has not been mentioned"});
    fillIn(m.window(), {"txtLink=me@x.org", "txtSubject=Hi there"});
    v.run([&] { m.ui.OKButton->click(); });
    EXPECT_EQ(v.area().text(), R"(<A href="mailto:me@x.org?subject=Hi there" TITLE="Write">x</A>)");
}

// The visual view copies the selection's text; with nothing copied the page's own
// dialog opens; the clipboard is emptied either way.
TEST(Links, TheVisualViewsHyperlink) {
    const struct {
        bool select;
        const char* clipboard;
        bool shown;
        const char* text;
    } cases[] = {
        {true, "", true, "two"},
        {false, "earlier", true, "earlier"},
        {false, "", false, ""},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        if (!c.select || !v.page().selectText("two"))
            v.page().setSelection(3, 0);
        v.program.clipboard.setText(c.clipboard);
        v.run([&] { v.tessara.ui.btnLinks->click(); });
        hyperlinks& d = v.program.forms->get<hyperlinks>();
        EXPECT_EQ(d.isVisible(), c.shown) << c.text;
        EXPECT_EQ(d.ui.txtTextToDisp.text(), c.text);
        EXPECT_EQ(d.ui.compOrEdit.text(), "comp");
        EXPECT_EQ(v.page().executed().contains(DECMD_HYPERLINK), !c.shown);
        EXPECT_EQ(v.program.clipboard.text(), "");
        if (!c.shown)
            continue;
        d.ui.txtLink.setText("a.htm");
        v.run([&] { d.ui.OKButton->click(); });
        v.tick();
        EXPECT_TRUE(v.page().bodyContent().contains(
            QStringLiteral(R"(<A rel="" href="a.htm">%1</A>)").arg(c.text)));
    }
}

// The link dialog's scan fills the bookmarks' hidden list too, so a later Go To
// picks the tag of the row it had then.
TEST(Links, BookmarksAddAndGoTo) {
    BuilderViews v;
    v.area().setText(R"(. <a name="one"></a> <A NAME="two"></A>)");
    v.run([&] { v.zelvo.mnuHyperlink(); });
    v.run([&] { v.program.forms->get<hyperlinks>().ui.CancelButton->click(); });
    v.run([&] { v.zelvo.ui.mnuBookmarks->trigger(); });
    bookmarks& b = v.program.forms->get<bookmarks>();
    ASSERT_EQ(b.ui.listBookMarks->count(), 2);
    EXPECT_EQ(b.ui.listAddress->count(), 4);
    b.ui.listBookMarks->setCurrentRow(1);
    v.run([&] { b.ui.btnGo->click(); });
    EXPECT_EQ(v.area().selText(), R"(<A NAME="two">)");
    EXPECT_FALSE(v.loaded<bookmarks>());

    v.run([&] { v.zelvo.mnuBookmarks(); });
    v.run([&] { v.program.forms->get<bookmarks>().ui.btnGo->click(); });
    EXPECT_EQ(v.asked().back(), "No Bookmark Selected");
    EXPECT_FALSE(v.loaded<bookmarks>());

    v.area().setSelStart(0);
    v.area().setSelLength(1);
    v.run([&] { v.zelvo.mnuBookmarks(); });
    v.program.forms->get<bookmarks>().ui.txtBookmark.setText("here");
    v.run([&] { v.program.forms->get<bookmarks>().ui.btnAdd->click(); });
    EXPECT_TRUE(v.area().text().startsWith(R"(<A name="here"></A> <a name="one">)"));
    EXPECT_TRUE(v.program.failures.empty());
}
