#include "views.h"

#include "platform/engine/memoryengine.h"
#include "visual/bridge.h"

#include <QAction>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

const QString kR1 = R"(<META NAME="GENERATOR" Content="Microsoft DHTML Editing Control">)";
const QString kR1After = R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)";
const QString kR2 = R"(<META content="MSHTML 6.00.2800.1106" name=GENERATOR>)";
const QString kR3 = R"(<META content="MSHTML 6.00.2600.0" name=GENERATOR>)";

} // namespace

TEST(Bridge, EachCallerScrubsWithItsOwnRules) {
    const QString page = "<HTML><HEAD>\r\n" + kR1 + "\r\n" + kR2 + "\r\n" + kR3 +
                         "\r\n<meta content=\"MSHTML 6.00.2800.1106\" name=GENERATOR>\r\n"
                         "</HEAD><BODY><P>x</P></BODY></HTML>";
    struct Case {
        RuleSet set;
        bool r2Stays;
        bool r3Stays;
        int rules;
    } cases[] = {{RuleSet::FullScrub, false, false, 3},
                 {RuleSet::StandardScrub, false, true, 2},
                 {RuleSet::GeneratorOnly, true, true, 1}};
    for (const auto& c : cases) {
        Views v;
        v.txtComp().setDocumentHTML(page);
        int changes = 0;
        v.area().addChangeHandler([&] { ++changes; });
        VisualSync(v.txtComp(), c.set, v.area());
        const QString text = v.area().text();
        EXPECT_FALSE(text.contains(kR1));
        EXPECT_TRUE(text.contains(kR1After));
        EXPECT_EQ(text.contains(kR2), c.r2Stays);
        EXPECT_EQ(text.contains(kR3), c.r3Stays);
        EXPECT_TRUE(text.contains("<meta content=")) << "another case is another text";
        if (c.set == RuleSet::FullScrub) {
            EXPECT_TRUE(text.contains(kR1After + "\r\n\r\n\r\n<meta")) << "breaks are kept";
        }
        // One assignment for the copy and one per rule, each a Change.
        EXPECT_EQ(changes, 1 + c.rules);
    }
}

// Each way to the source view scrubs with the full rule set; the way back copies
// the text unchanged. Both mark the document.
TEST(Bridge, SwitchingToSourceAndBackMarksTheDocument) {
    const QString page = "<HTML><HEAD>\r\n" + kR1 + "\r\n" + kR2 + "\r\n" + kR3 +
                         "\r\n</HEAD><BODY><P>x</P></BODY></HTML>";
    for (const char* entry : {"mnuEditor", "mnuViewEditor", "showCode"}) {
        SCOPED_TRACE(entry);
        Views v;
        v.tessara.show();
        v.txtComp().setDocumentHTML(page);
        v.tessara.window()->findChild<QAction*>(entry)->trigger();
        EXPECT_TRUE(v.zelvo.isVisible());
        EXPECT_FALSE(v.tessara.isVisible());
        EXPECT_EQ(v.star(), "*");
        const QString text = v.area().text();
        // Only the full rule set takes out the third line.
        EXPECT_TRUE(text.contains(kR1After) && !text.contains(kR3));
        EXPECT_TRUE(v.zelvo.caption().startsWith("Zelvo Tessara: By Orvek - (*)"));

        v.area().setText("<HTML><BODY><P>typed</P></BODY></HTML>");
        v.zelvo.ui.mnuTessara->trigger();
        EXPECT_TRUE(v.tessara.isVisible());
        EXPECT_FALSE(v.zelvo.isVisible());
        EXPECT_TRUE(v.txtComp().documentHTML().contains("typed"));
    }
}

TEST(Bridge, DirtyMarkFromTheVisualSideAndTheReadyTexts) {
    Views v;
    v.run([&] { v.tessara.txtComp_DisplayChanged(); });
    EXPECT_EQ(v.star(), "");
    v.run([&] { v.tessara.txtComp_onkeypress(); });
    EXPECT_EQ(v.star(), "*");
    EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - (*) ");

    v.area().setText("a\r\nb");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(1), "Ready: Zelvo Tessara - By: Orvek");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(3), "Lines: 2");
    v.area().setText("");
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(3), "Lines: 1");
}

TEST(Bridge, TwoFragmentsBeforeTheTickInsertOnlyTheSecond) {
    Views v;
    v.txtComp().setDocumentHTML("<HTML><HEAD></HEAD><BODY><P>page</P></BODY></HTML>");
    v.program.clipboard.setText("earlier clipboard");
    v.tessara.VisualInsert("<HR>");
    v.tessara.VisualInsert("<H1>second</H1>");
    EXPECT_TRUE(v.tessara.ui.Timer1.enabled());
    EXPECT_EQ(v.tessara.ui.Timer1.interval(), 200);

    v.tessara.ui.Timer1.fire();
    const QString page = v.txtComp().documentHTML();
    EXPECT_TRUE(page.contains("second")) << page.toStdString();
    EXPECT_FALSE(page.contains("<hr", Qt::CaseInsensitive));
    EXPECT_TRUE(page.contains("page"));
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());
    EXPECT_FALSE(v.tessara.ui.tagbar->isVisible());
    EXPECT_NE(v.program.clipboard.text(), "earlier clipboard")
        << "the insertion used the clipboard";
    EXPECT_TRUE(v.program.failures.empty());
}
