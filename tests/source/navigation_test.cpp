#include "builders/builderkit.h"
#include "source/areafixture.h"
#include "source/findme.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTest>

using namespace zt;
using namespace zt::test;

const QString kLong(33000, u'x');

// Each row runs its commands in turn: s Smart Select, e Find End Tag, d Auto Delete,
// f Find (F with Match Case) of typed, n Find Next of typed.
TEST(Navigation, TagCommandsAndSearchesMoveTheSelectionByTheText) {
    const QString unexpected = "Unexpected error occurred|Assistant: Zelvo|48";
    const QString finished = "Zelvo Tessara finished searching document|Zelvo Tessara|0";
    const struct {
        const char* commands;
        QString before, typed, after, box = {};
        int failure = 0;
    } cases[] = {
        {"s", "<a hr|ef=\"x\">link</a>", "", "[<a href=\"x\">]link</a>"},
        {"s", "<p>a|b</p>", "", "[<p>ab</p>]"},
        {"s", "|<b>x</b>", "", "|<b>x</b>"},
        {"s", "a b|>", "", "a b|>"}, // no "<": nothing changes
        {"s", "x<a|b", "", "x|<ab"}, // no ">": the caret has moved
        {"s", kLong + "<b|>", "", kLong + "<b|>"},
        {"e", "<ta|ble border=1><tr></tr></table></table>", "",
         "<table border=1><tr></tr>[</table>]</table>", unexpected},
        {"d", "<b>|x</b>", "", "|x"},
        {"d", "ab <B|>x</b> cd", "", "ab |x cd"},
        {"d", "<br|>text", "", "[<br>]text", "End of the tag was not found|Assistant: Zelvo|48"},
        {"d", kLong + "<b|>x</b>", "", kLong + "<b|>x</b>", unexpected},
        {"f", "<HTML>h|", "h", "<[H]TML>h"},
        {"f", "<HTML>|", "<", "<HTML>|", finished}, // a match at 0 counts as none
        {"f", "<HTML>|", "", "<HTML>|", finished},
        {"F", "<HTML>h|", "h", "<HTML>[h]"},
        {"f", kLong + "ab|", "ab", kLong + "ab|", "", RuntimeFailure::Overflow},
        {"n", "x[aaa]a", "aaa", "xa[aaa]"},
        {"Fn", "xAya|", "A", "xAy[a]"}, // Find Next reads a fresh dialog's Match Case
        {"n", "x[ab]", "ab", "x[ab]", finished},
        {"n", kLong.left(32766) + "|ab", "ab", kLong.left(32766) + "|ab", "",
         RuntimeFailure::Overflow},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.commands + (": " + c.before.right(40)).toStdString());
        BuilderViews v;
        put(v.area(), c.before);
        v.zelvo.ui.txtSearch.setText(c.typed);
        for (const char command : std::string(c.commands)) {
            if (command == 'f' || command == 'F') {
                FindMe& dialog = v.program.forms->get<FindMe>();
                dialog.ui.txtFind.setText(c.typed);
                dialog.ui.chkCase->setChecked(command == 'F');
                v.run([&] { dialog.OKButton_Click(); });
                v.settle();
                continue;
            }
            v.run([&] {
                command == 's'   ? v.zelvo.mnusmartsel()
                : command == 'e' ? v.zelvo.mnuFindEndTag()
                : command == 'd' ? v.zelvo.mnuAutoDelete()
                                 : v.zelvo.mnuFindNext();
            });
        }
        EXPECT_TRUE(shown(v.area()) == c.after) << shown(v.area()).right(40).toStdString();
        EXPECT_EQ(question(v.program), c.box);
        EXPECT_EQ(failure(v.program), c.failure);
    }
}

// The user's way: the toolbar's Find, the dialog's buttons, the Edit menu, F3, Ctrl+F.
TEST(Navigation, TheToolbarsFindAndF3SearchTheSourceView) {
    BuilderViews v;
    v.zelvo.show();
    v.zelvo.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v.zelvo.window()));
    put(v.area(), "one Two two |two");
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("Find"); });
    FindMe& dialog = v.program.forms->get<FindMe>();
    EXPECT_TRUE(dialog.isVisible() && dialog.window()->windowFlags() & Qt::WindowStaysOnTopHint);
    type(dialog.ui.txtFindView, "two");
    QTest::mouseClick(dialog.ui.OKButton, Qt::LeftButton);
    v.settle();
    EXPECT_EQ(shown(v.area()), "one [Two] two two");

    emit v.zelvo.ui.mnuEdit->menu()->aboutToShow();
    for (const char* after : {"one Two [two] two", "one Two two [two]", "one Two two [two]"}) {
        QTest::keyClick(v.zelvo.ui.areaView, Qt::Key_F3);
        EXPECT_EQ(shown(v.area()), after);
    }
    EXPECT_FALSE(v.program.forms->get<FindMe>().isVisible()) << "Find Next loads it hidden";
    EXPECT_EQ(v.program.prompts.asked.size(), 1u) << "only the last F3 finds nothing";

    QTest::keyClick(v.zelvo.ui.areaView, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(v.program.forms->get<FindMe>().isVisible());
    QTest::mouseClick(v.program.forms->get<FindMe>().ui.CancelButton, Qt::LeftButton);
    EXPECT_FALSE(v.loaded<FindMe>());
}
