#include "platform/guard.h"
#include "platform/linebreaks.h"
#include "platform/texteditview.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <vector>

using namespace zt;

namespace {

QString q(const char* text) {
    return QString::fromLatin1(text);
}

// A text box on screen whose Change handler counts and records what the editor
// shows at that moment.
class TextEditViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        Guard::setEnding([this](const RuntimeFailure& f) { failures.push_back(f.number()); });
        box.addChangeHandler([this] {
            ++changes;
            shownAtChange = view.toPlainText();
        });
        view.resize(400, 300);
        view.show();
        view.setFocus();
    }
    void TearDown() override { Guard::restoreDefaults(); }

    // Puts text and caret (or selection) in place from the program's side.
    void start(const char* text, int selStart, int selLength = 0) {
        box.setText(q(text));
        box.setSelStart(selStart);
        box.setSelLength(selLength);
        changes = 0;
    }

    void selectInEditor(int anchor, int position) {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(anchor);
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }

    TextControl box;
    TextEditView view{box};
    int changes = 0;
    QString shownAtChange;
    std::vector<int> failures;
};

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

} // namespace

TEST_F(TextEditViewTest, EachKeystrokeIsOneChange) {
    QTest::keyClicks(&view, QStringLiteral("ab"));
    EXPECT_EQ(box.text(), q("ab"));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(shownAtChange, q("ab")) << "the editor is up to date when Change runs";

    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(box.text(), q("ab\r\n"));
    EXPECT_EQ(box.selStart(), 4);
    EXPECT_EQ(view.toPlainText(), q("ab\n"));
    EXPECT_EQ(changes, 3);

    QTest::keyClick(&view, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), q("ab"));
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(changes, 4) << "the whole CR LF goes in one change";
}

TEST_F(TextEditViewTest, EditingKeysMakeOneReplacement) {
    struct Case {
        const char* text;
        int selStart;
        int selLength;
        std::vector<Key> keys;
        const char* want;
        int wantCaret;
        int wantChanges;
    };
    const Case cases[] = {
        {"ab\r\ncd", 4, 0, {{Qt::Key_Backspace}}, "abcd", 2, 1},
        {"ab\r\ncd", 2, 0, {{Qt::Key_Delete}}, "abcd", 2, 1},
        {"a\rb", 2, 0, {{Qt::Key_Backspace}}, "ab", 1, 1},
        {"a\nb", 1, 0, {{Qt::Key_Delete}}, "ab", 1, 1},
        {"ab\r\ncd",
         1,
         0,
         {{Qt::Key_Right, Qt::ShiftModifier}, {Qt::Key_Right, Qt::ShiftModifier}, {Qt::Key_X}},
         "axcd",
         2,
         1},
        {"ab\r\ncd", 1, 4, {{Qt::Key_Return}}, "a\r\nd", 3, 1},
        {"abc", 1, 1, {{Qt::Key_Backspace}}, "ac", 1, 1},
        {"abc", 3, 0, {{Qt::Key_Delete}}, "abc", 3, 0},
        {"abc", 0, 0, {{Qt::Key_Backspace}}, "abc", 0, 0},
        {"abc", 1, 0, {{Qt::Key_Tab}}, "a\tbc", 2, 1},
        {"abc", 1, 0, {{Qt::Key_Z, Qt::ControlModifier}}, "abc", 1, 0},
        {"one two", 7, 0, {{Qt::Key_Backspace, Qt::ControlModifier}}, "one ", 4, 1},
        {"x\r\ny", 5, 0, {{Qt::Key_Up}, {Qt::Key_Q}}, "xq\r\ny", 2, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        start(c.text, c.selStart, c.selLength);
        for (const Key& key : c.keys)
            QTest::keyClick(&view, key.key, key.modifiers);
        EXPECT_EQ(box.text(), q(c.want));
        EXPECT_EQ(box.selStart(), c.wantCaret);
        EXPECT_EQ(box.selLength(), 0);
        EXPECT_EQ(changes, c.wantChanges);
        EXPECT_EQ(view.toPlainText(), linebreaks::toDocument(q(c.want)));
    }
}

TEST_F(TextEditViewTest, PasteAndCutAreOneChangeEach) {
    start("ab", 1);
    QGuiApplication::clipboard()->setText(QStringLiteral("x\ny"));
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), q("ax\r\nyb"));
    EXPECT_EQ(box.selStart(), 5);
    EXPECT_EQ(changes, 1);

    selectInEditor(1, 4); // "x", the break and "y"
    QTest::keyClick(&view, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(box.text(), q("ab"));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), q("x\ny"));
}

TEST_F(TextEditViewTest, DroppedTextIsOneChange) {
    start("ab\r\ncd", 0);
    QMimeData data;
    data.setText(QStringLiteral("1\n2"));
    QTextCursor target = view.textCursor();
    target.setPosition(4); // between c and d
    const QPoint point = view.cursorRect(target).center();
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
    EXPECT_EQ(box.text(), q("ab\r\nc1\r\n2d"));
    EXPECT_EQ(changes, 1);
}

TEST_F(TextEditViewTest, EditorSelectionIsMirroredInModelPositions) {
    start("ab\r\ncd\r\nef", 0);
    struct Case {
        int anchor;
        int position;
        int wantStart;
        int wantLength;
    };
    // The editor shows "ab\ncd\nef".
    const Case cases[] = {{4, 7, 5, 4}, {7, 4, 5, 4}, {3, 3, 4, 0}, {0, 8, 0, 10}, {2, 3, 2, 2}};
    for (const Case& c : cases) {
        selectInEditor(c.anchor, c.position);
        EXPECT_EQ(box.selStart(), c.wantStart) << c.anchor << "-" << c.position;
        EXPECT_EQ(box.selLength(), c.wantLength) << c.anchor << "-" << c.position;
        EXPECT_EQ(view.textCursor().anchor(), c.anchor) << "the editor keeps its direction";
    }
    QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 4);
    EXPECT_EQ(changes, 0);
}

TEST_F(TextEditViewTest, MouseSelectionIsMirrored) {
    start("ab\r\ncd", 0);
    QTextCursor at = view.textCursor();
    at.setPosition(1);
    const QPoint from = view.cursorRect(at).center();
    at.setPosition(4);
    const QPoint to = view.cursorRect(at).center();
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(view.viewport(), to);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(box.selLength(), 4) << "b, CR, LF and c";
    EXPECT_EQ(changes, 0);
}

TEST_F(TextEditViewTest, ProgramAssignmentsShowInTheEditor) {
    box.setText(q("ab\r\ncd"));
    EXPECT_EQ(view.toPlainText(), q("ab\ncd"));
    EXPECT_EQ(view.textCursor().position(), 0);

    box.setSelStart(4);
    EXPECT_EQ(view.textCursor().position(), 3);
    box.setSelLength(2);
    EXPECT_EQ(view.textCursor().selectionStart(), 3);
    EXPECT_EQ(view.textCursor().selectionEnd(), 5);

    box.setSelText(q("X\r\nY"));
    EXPECT_EQ(view.toPlainText(), q("ab\nX\nY"));
    EXPECT_EQ(view.textCursor().position(), 6);
    EXPECT_FALSE(view.textCursor().hasSelection());

    // A position inside a CR LF shows behind the break and is not echoed back.
    box.setSelStart(3);
    EXPECT_EQ(view.textCursor().position(), 3);
    EXPECT_EQ(box.selStart(), 3);
}

TEST_F(TextEditViewTest, HandlerThatRewritesTheTextWinsOverTheKeystroke) {
    box.addChangeHandler([this] {
        const QString upper = box.text().toUpper();
        if (upper != box.text()) {
            const int caret = box.selStart();
            box.setText(upper);
            box.setSelStart(caret);
        }
    });
    QTest::keyClicks(&view, QStringLiteral("ab"));
    EXPECT_EQ(box.text(), q("AB"));
    EXPECT_EQ(view.toPlainText(), q("AB"));
    EXPECT_EQ(view.textCursor().position(), 2);
}

TEST_F(TextEditViewTest, FailingHandlerReachesTheGuardAndTheEditKeeps) {
    box.addChangeHandler([] { throw RuntimeFailure::overflow(); });
    QTest::keyClick(&view, Qt::Key_A);
    EXPECT_EQ(failures, std::vector<int>{RuntimeFailure::Overflow});
    EXPECT_EQ(box.text(), q("a"));
    EXPECT_EQ(view.toPlainText(), q("a"));
}

TEST_F(TextEditViewTest, ReadOnlyEditorRefusesEdits) {
    start("abc", 1);
    view.setReadOnly(true);
    QTest::keyClicks(&view, QStringLiteral("xy"));
    QTest::keyClick(&view, Qt::Key_Backspace);
    QTest::keyClick(&view, Qt::Key_Return);
    QGuiApplication::clipboard()->setText(QStringLiteral("z"));
    QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), q("abc"));
    EXPECT_EQ(changes, 0);
    box.setText(q("shown"));
    EXPECT_EQ(view.toPlainText(), q("shown"));
}

// A keystroke in a large text edits the document where it happened instead of loading
// it again: a cursor kept far away is carried along rather than reset.
TEST_F(TextEditViewTest, KeystrokeInLargeTextIsAppliedInPlace) {
    const QString line = QStringLiteral("The quick brown fox jumps over the lazy dog.\r\n");
    box.setText(line.repeated(1024 * 1024 / line.size()));
    box.setSelStart(line.size() * 10);
    changes = 0;
    QTextCursor far(view.document());
    far.movePosition(QTextCursor::End);
    const int farPosition = far.position();

    QTest::keyClick(&view, Qt::Key_Z);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(far.position(), farPosition + 1);
    EXPECT_EQ(box.text().mid(line.size() * 10 - 2, 4), q("\r\nzT"));
    EXPECT_EQ(view.document()->findBlockByNumber(10).text(), QString(u'z' + line.chopped(2)));
    EXPECT_EQ(view.textCursor().position(), far.document()->findBlockByNumber(10).position() + 1);
}

TEST_F(TextEditViewTest, ComposedTextIsOneChange) {
    start("ab", 1);
    QInputMethodEvent composing(QStringLiteral("e"), {});
    QApplication::sendEvent(&view, &composing);
    EXPECT_EQ(changes, 0) << "text still being composed is not in the box";
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("\u00e9"));
    QApplication::sendEvent(&view, &commit);
    EXPECT_EQ(box.text(), QStringLiteral("a\u00e9b"));
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(changes, 1);
}

TEST_F(TextEditViewTest, EditorEditedAroundTheControlReturnsToItsText) {
    start("ab\r\ncd", 2);
    view.insertPlainText(QStringLiteral("zz"));
    QCoreApplication::processEvents();
    EXPECT_EQ(view.toPlainText(), q("ab\ncd"));
    EXPECT_EQ(box.text(), q("ab\r\ncd"));
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(changes, 0);
    // Typing goes on at the right place afterwards.
    box.setSelStart(4);
    QTest::keyClick(&view, Qt::Key_X);
    EXPECT_EQ(box.text(), q("ab\r\nxcd"));
    EXPECT_EQ(view.toPlainText(), q("ab\nxcd"));
}
