#include "platform/guard.h"
#include "platform/linebreaks.h"
#include "platform/texteditview.h"
#include "support/markedtext.h"
#include "testhelpers.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <vector>

using namespace zt;
using namespace zt::test;

namespace {

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
    void start(const char* marked) {
        put(box, q(marked));
        changes = 0;
    }

    // The middle of the caret's place at a document position, for the mouse and drops.
    QPoint pointAt(int position) {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(position);
        return view.cursorRect(cursor).center();
    }

    TextControl box;
    TextEditView view{box};
    int changes = 0;
    QString shownAtChange;
    std::vector<int> failures;
};

} // namespace

TEST_F(TextEditViewTest, EachEditingKeyIsOneReplacement) {
    struct Case {
        const char *before, *keys, *after;
        int wantChanges;
    };
    QGuiApplication::clipboard()->setText(QStringLiteral("x\ny"));
    const Case cases[] = {
        {"|", "A, B", "ab|", 2},
        {"ab|", "Return", "ab\r\n|", 1},
        {"ab\r\n|cd", "Backspace", "ab|cd", 1}, // the whole CR LF in one change
        {"ab|\r\ncd", "Del", "ab|cd", 1},
        {"a\r|b", "Backspace", "a|b", 1},
        {"a|\nb", "Del", "a|b", 1},
        {"a|b\r\ncd", "Shift+Right, Shift+Right, X", "ax|cd", 1},
        {"a[b\r\nc]d", "Return", "a\r\n|d", 1},
        {"abc|", "Del", "abc|", 0},
        {"|abc", "Backspace", "|abc", 0},
        {"a|bc", "Tab", "a\t|bc", 1},
        {"a|bc", "Ctrl+Z", "a|bc", 0},         // an assignment left nothing to undo
        {"x|", "A, B, Ctrl+Z", "x|", 3},       // a typed run is one step
        {"x|", "A, Return, Ctrl+Z", "xa|", 3}, // a break is a step of its own
        {"x|", "A, Ctrl+Z, Ctrl+Y", "xa|", 3},
        {"x|", "A, Ctrl+Z, Ctrl+Shift+Z", "xa|", 3},
        {"x|", "A, Ctrl+Z, B, Ctrl+Y", "xb|", 3}, // a new edit drops the redo
        {"one two|", "Ctrl+Backspace, Ctrl+Z", "one two|", 2},
        {"one two|", "Ctrl+Backspace", "one |", 1},
        {"x\r\ny|", "Up, Q", "xq|\r\ny", 1},
        {"a|b", "Ctrl+V", "ax\r\ny|b", 1},
        {"a[1\r\n2]b", "Ctrl+X", "a|b", 1}, // last: it replaces the clipboard
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.before) + " " + c.keys);
        start(c.before);
        QTest::keySequence(&view, QKeySequence(QString::fromLatin1(c.keys)));
        EXPECT_EQ(shown(box), q(c.after));
        EXPECT_EQ(changes, c.wantChanges);
        EXPECT_EQ(view.toPlainText(), linebreaks::toDocument(box.text()));
        if (c.wantChanges > 0) {
            EXPECT_EQ(shownAtChange, view.toPlainText()) << "the editor is up to date at Change";
        }
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), q("1\n2"));
}

TEST_F(TextEditViewTest, EditorSelectionIsMirroredInModelPositions) {
    start("|ab\r\ncd\r\nef");
    // The editor shows "ab\ncd\nef".
    const std::tuple<int, int, const char*> cases[] = {{4, 7, "ab\r\nc[d\r\ne]f"},
                                                       {7, 4, "ab\r\nc[d\r\ne]f"},
                                                       {3, 3, "ab\r\n|cd\r\nef"},
                                                       {0, 8, "[ab\r\ncd\r\nef]"},
                                                       {2, 3, "ab[\r\n]cd\r\nef"}};
    for (const auto& [anchor, position, want] : cases) {
        QTextCursor cursor = view.textCursor();
        cursor.setPosition(anchor);
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
        EXPECT_EQ(shown(box), q(want)) << anchor << "-" << position;
        EXPECT_EQ(view.textCursor().anchor(), anchor) << "the editor keeps its direction";
    }
    // By mouse from behind a to behind c: b, CR, LF and c.
    box.setSelStart(0);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, pointAt(1));
    QTest::mouseMove(view.viewport(), pointAt(4));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, pointAt(4));
    EXPECT_EQ(shown(box), q("a[b\r\nc]d\r\nef"));
    EXPECT_EQ(changes, 0);
}

TEST_F(TextEditViewTest, ProgramAssignmentsShowInTheEditorEvenWhenReadOnly) {
    start("ab\r\n[cd]");
    EXPECT_EQ(view.textCursor().selectionStart(), 3);
    EXPECT_EQ(view.textCursor().selectionEnd(), 5);

    // A position inside a CR LF shows behind the break and is not echoed back.
    box.setSelStart(3);
    EXPECT_EQ(view.textCursor().position(), 3);
    EXPECT_EQ(box.selStart(), 3);

    // A read-only editor refuses the user's edits but still shows the program's.
    start("a|bc");
    view.setReadOnly(true);
    QGuiApplication::clipboard()->setText(QStringLiteral("z"));
    QTest::keySequence(&view, QKeySequence(QStringLiteral("X, Backspace, Return, Ctrl+V")));
    EXPECT_EQ(box.text(), q("abc"));
    EXPECT_EQ(changes, 0);
    box.setText(q("shown"));
    EXPECT_EQ(view.toPlainText(), q("shown"));
}

TEST_F(TextEditViewTest, HandlersThatRewriteWinAndFailuresReachTheGuardAfterTheEdit) {
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

    box.addChangeHandler([] { throw RuntimeFailure::overflow(); });
    QTest::keyClick(&view, Qt::Key_C);
    EXPECT_EQ(failures, std::vector<int>{RuntimeFailure::Overflow});
    EXPECT_EQ(box.text(), q("ABC"));
    EXPECT_EQ(view.toPlainText(), q("ABC"));
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

// Edits anywhere in a text of many pieces, many of them cutting or joining a CR LF
// pair, from the program and from the keyboard in turn: the editor must show the
// control's text, and its caret the control's, after every one.
TEST_F(TextEditViewTest, EditsAnywhereKeepEditorAndControlInStep) {
    std::mt19937 random(5);
    const Qt::Key keys[] = {Qt::Key_X, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return};
    box.setText(test::randomText(random, 20000));
    for (int edit = 0; edit < 200; ++edit) {
        box.setSelStart(int(random() % (box.text().size() + 1)));
        box.setSelLength(int(random() % 6));
        if (edit % 2 == 0)
            box.setSelText(test::randomText(random, int(random() % 6)));
        else
            QTest::keyClick(&view, keys[random() % 4]);
        ASSERT_EQ(view.toPlainText(), linebreaks::toDocument(box.text())) << edit;
        const QString beforeCaret = box.text().left(box.selStart() + box.selLength());
        ASSERT_EQ(view.textCursor().position(), linebreaks::toDocument(beforeCaret).size()) << edit;
    }
}

TEST_F(TextEditViewTest, DroppedAndComposedTextAreOneChangeEach) {
    start("|ab\r\ncd");
    QMimeData data;
    data.setText(QStringLiteral("1\n2"));
    QDragEnterEvent enter(pointAt(4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &enter);
    QDropEvent drop(pointAt(4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &drop);
    EXPECT_EQ(box.text(), q("ab\r\nc1\r\n2d"));
    EXPECT_EQ(changes, 1);

    start("a|b");
    QInputMethodEvent composing(QStringLiteral("e"), {});
    QApplication::sendEvent(&view, &composing);
    EXPECT_EQ(changes, 0) << "text still being composed is not in the box";
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("\u00e9"));
    QApplication::sendEvent(&view, &commit);
    EXPECT_EQ(shown(box), QStringLiteral("a\u00e9|b"));
    EXPECT_EQ(changes, 1);
}

TEST_F(TextEditViewTest, EditorEditedAroundTheControlReturnsToItsText) {
    start("ab|\r\ncd");
    view.insertPlainText(QStringLiteral("zz"));
    QCoreApplication::processEvents();
    EXPECT_EQ(view.toPlainText(), q("ab\ncd"));
    EXPECT_EQ(shown(box), q("ab|\r\ncd"));
    EXPECT_EQ(changes, 0);
    // Typing goes on at the right place afterwards.
    box.setSelStart(4);
    QTest::keyClick(&view, Qt::Key_X);
    EXPECT_EQ(box.text(), q("ab\r\nxcd"));
    EXPECT_EQ(view.toPlainText(), q("ab\nxcd"));
}

// A long line is shown in several lines of the editor. Carets put in front of, behind
// and on both sides of those cuts, then keys, copies, cuts, pastes and undo: the editor
// must hold the control's text (its cuts aside), select the same characters, and give
// the clipboard the true text.
TEST_F(TextEditViewTest, LongLinesCutForDisplayEditAsTheControlsText) {
    std::mt19937 random(7);
    const auto noBreaks = [](QString text) {
        return text.remove(u'\n').remove(u'\r').remove(QChar::ParagraphSeparator);
    };
    QString line;
    for (int i = 0; i < 30000; ++i)
        line += QChar(u"ab <>;"[random() % 6]);
    box.setText(line.insert(20000, q("\r\n")));
    const char* const keys[] = {"Q",      "Backspace",  "Del",    "Return", "Ctrl+Z",
                                "Ctrl+C", "Shift+Left", "Ctrl+X", "Ctrl+V", "Shift+Right, Del"};
    for (int step = 0; step < 300; ++step) {
        QTextCursor cursor = view.textCursor();
        const QTextBlock block = view.document()->findBlockByNumber(
            int(random() % unsigned(view.document()->blockCount())));
        const int ends[] = {0, 1, block.length() - 2, block.length() - 1};
        cursor.setPosition(block.position() +
                           std::clamp(ends[random() % 4], 0, block.length() - 1));
        if (random() % 2)
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, 3);
        view.setTextCursor(cursor);
        const QString selected = box.selText();
        const qsizetype sizeBefore = box.text().size();
        const bool inside = box.selStart() > 0 && box.selStart() < sizeBefore;
        const char* key = keys[random() % std::size(keys)];
        QTest::keySequence(&view, QKeySequence(QString::fromLatin1(key)));
        SCOPED_TRACE(std::to_string(step) + " " + key);
        if (inside && (key == std::string("Backspace") || key == std::string("Del"))) {
            ASSERT_LT(box.text().size(), sizeBefore) << "a key next to a cut takes a character";
        }

        ASSERT_EQ(view.toPlainText(), linebreaks::toDocument(box.text()));
        if (!selected.isEmpty() && (key == std::string("Ctrl+C") || key == std::string("Ctrl+X"))) {
            ASSERT_EQ(QGuiApplication::clipboard()->text(), linebreaks::toDocument(selected));
        }
        for (QTextBlock b = view.document()->begin(); b.isValid(); b = b.next())
            ASSERT_LE(b.length(), linebreaks::PositionMap::kLongestLine + 1);
        cursor.setPosition(view.textCursor().selectionEnd());
        cursor.setPosition(0, QTextCursor::KeepAnchor);
        ASSERT_EQ(noBreaks(cursor.selectedText()),
                  noBreaks(box.text().left(box.selStart() + box.selLength())));
    }
    EXPECT_GT(view.document()->blockCount(), 8);
}
