#include "platform/guard.h"
#include "platform/textlineview.h"

#include <QTest>

#include <gtest/gtest.h>

#include <vector>

using namespace zt;

namespace {

// A one-line box on screen whose Change handler counts and records what the editor
// shows at that moment.
class TextLineViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        Guard::setEnding([this](const RuntimeFailure& f) { failures.push_back(f.number()); });
        box.addChangeHandler([this] {
            ++changes;
            shownAtChange = view.text();
            // A handler that rewrites the text wins over the key.
            if (box.text().contains(QLatin1Char('x')))
                box.setText(QString());
        });
        view.show();
        view.setFocus();
    }
    void TearDown() override { Guard::restoreDefaults(); }

    TextControl box;
    TextLineView view{box};
    int changes = 0;
    QString shownAtChange;
    std::vector<int> failures;
};

} // namespace

TEST_F(TextLineViewTest, EachKeyIsOneEditOfTheControlAndHandlersRewritingItWin) {
    QTest::keyClicks(&view, "abc");
    EXPECT_EQ(box.text(), "abc");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(shownAtChange, "abc");
    EXPECT_EQ(box.selStart(), 3);

    QTest::keyClick(&view, Qt::Key_Left);
    QTest::keyClick(&view, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "ac");
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(changes, 4);

    // Typing over a selection replaces it in one edit.
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Z);
    EXPECT_EQ(box.text(), "z");
    EXPECT_EQ(changes, 5);
    QTest::keyClick(&view, Qt::Key_X);
    EXPECT_EQ(view.text(), "");
    QTest::keyClick(&view, Qt::Key_B);
    EXPECT_EQ(view.text(), "b");
    EXPECT_TRUE(failures.empty());
}

TEST_F(TextLineViewTest, ShowsWhatTheProgramWritesAndWhereItPutsTheCaret) {
    box.setText("12\r\n34");
    EXPECT_EQ(view.text(), "12\r\n34");
    EXPECT_EQ(view.cursorPosition(), 0);
    box.setSelStart(2);
    box.setSelLength(2);
    EXPECT_EQ(view.selectionStart(), 2);
    EXPECT_EQ(view.selectedText().size(), 2);
    box.setSelText("");
    EXPECT_EQ(view.text(), "1234");
    EXPECT_EQ(view.cursorPosition(), 2);

    view.setBackColor(0x0000FF);
    EXPECT_EQ(view.backColor(), 0x0000FFu);
    EXPECT_EQ(view.palette().color(QPalette::Base), QColor(255, 0, 0));
}
