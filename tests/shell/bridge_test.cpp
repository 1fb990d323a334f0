#include "views.h"

#include "visual/bridge.h"

#include <QAction>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

const QString kR1 = R"(<META NAME="GENERATOR" Content="Microsoft DHTML Editing Control">)";
const QString kR1After = R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)";
const QString kR2 = R"(<META content="MSHTML 6.00.2800.1106" name=GENERATOR>)";
const QString kR3 = R"(<META content="MSHTML 6.00.2600.0" name=GENERATOR>)";
const QString kPage = "<HTML><HEAD>\r\n" + kR1 + "\r\n" + kR2 + "\r\n" + kR3 +
                      "\r\n<meta content=\"MSHTML 6.00.2800.1106\" name=GENERATOR>\r\n"
                      "</HEAD><BODY><P>x</P></BODY></HTML>";

// The removed lines leave their breaks behind, and another case is another text.
TEST(Bridge, EachCallerScrubsWithItsOwnRules) {
    const struct {
        RuleSet set;
        QString lines;
        int changes; // one for the copy and one per rule
    } cases[] = {{RuleSet::FullScrub, kR1After + "\r\n\r\n\r\n", 4},
                 {RuleSet::StandardScrub, kR1After + "\r\n\r\n" + kR3 + "\r\n", 3},
                 {RuleSet::GeneratorOnly, kR1After + "\r\n" + kR2 + "\r\n" + kR3 + "\r\n", 2}};
    for (const auto& c : cases) {
        Views v;
        v.txtComp().setDocumentHTML(kPage);
        int changes = 0;
        v.area().addChangeHandler([&] { ++changes; });
        VisualSync(v.txtComp(), c.set, v.area());
        EXPECT_EQ(v.area().text(),
                  QString(kPage).replace(kR1 + "\r\n" + kR2 + "\r\n" + kR3 + "\r\n", c.lines));
        EXPECT_EQ(changes, c.changes);
    }
}

// Each way to the source view scrubs with the full rule set; the way back copies
// the text unchanged. Both mark the document.
TEST(Bridge, SwitchingToSourceAndBackMarksTheDocument) {
    for (const char* entry : {"mnuEditor", "mnuViewEditor", "showCode"}) {
        SCOPED_TRACE(entry);
        Views v;
        v.tessara.show();
        v.txtComp().setDocumentHTML(kPage);
        v.tessara.window()->findChild<QAction*>(entry)->trigger();
        EXPECT_TRUE(v.zelvo.isVisible() && !v.tessara.isVisible());
        // Only the full rule set takes out the third line.
        EXPECT_TRUE(v.area().text().contains(kR1After) && !v.area().text().contains(kR3));
        EXPECT_TRUE(v.zelvo.caption().startsWith("Zelvo Tessara: By Orvek - (*)"));

        v.area().setText("<HTML><BODY><P>typed</P></BODY></HTML>");
        v.zelvo.ui.mnuTessara->trigger();
        EXPECT_TRUE(v.tessara.isVisible() && !v.zelvo.isVisible());
        EXPECT_TRUE(v.txtComp().documentHTML().contains("typed"));
    }
}

TEST(Bridge, DirtyMarkFromTheVisualSideAndTheReadyTexts) {
    Views v;
    v.run([&] { v.tessara.txtComp_DisplayChanged(); });
    EXPECT_EQ(v.star(), "");
    v.run([&] { v.tessara.txtComp_onkeypress(); });
    EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - (*) ");

    v.area().setText("a\r\nb");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(1), "Ready: Zelvo Tessara - By: Orvek");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(3), "Lines: 2");
    v.area().setText("");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(3), "Lines: 1");

    // A fragment waits for the tick that puts it into the page; a second one before
    // the tick takes its place.
    v.tessara.VisualInsert("<HR>");
    v.tessara.VisualInsert("<H1>second</H1>");
    EXPECT_TRUE(v.tessara.ui.Timer1.enabled() && v.tessara.ui.Timer1.interval() == 200);
    v.tessara.ui.Timer1.fire();
    const QString page = v.txtComp().documentHTML();
    EXPECT_TRUE(page.contains("second") && !page.contains("<hr", Qt::CaseInsensitive))
        << page.toStdString();
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());
}
