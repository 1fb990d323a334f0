#include "views.h"

#include "platform/texteditview.h"

#include <QAction>
#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// The source view up and active with the editor focused, counting area's Changes.
struct FocusedEditor : Views {
    FocusedEditor() {
        zelvo.show();
        zelvo.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(zelvo.window()));
        zelvo.ui.areaView->setFocus();
        area().addChangeHandler([this] { ++changes; });
    }
    void start(const QString& text, int selStart, int selLength) {
        area().setText(text);
        area().setSelStart(selStart);
        area().setSelLength(selLength);
        changes = 0;
    }
    TextEditView& editor() { return *zelvo.ui.areaView; }
    int changes = 0;
};

} // namespace

// Every key of the source view's menus is the menu's, also while the editor has the
// focus: the editor does not claim it first.
TEST(SourceEditor, EveryMenuKeyReachesItsMenuItem) {
    FocusedEditor v;
    int keys = 0;
    for (QAction* item : v.zelvo.window()->findChildren<QAction*>()) {
        for (const QKeySequence& key : item->shortcuts()) {
            QKeyEvent press(QEvent::ShortcutOverride, key[0].key(), key[0].keyboardModifiers());
            press.setAccepted(false);
            QCoreApplication::sendEvent(&v.editor(), &press);
            EXPECT_FALSE(press.isAccepted()) << key.toString().toStdString();
            ++keys;
        }
    }
    EXPECT_GT(keys, 15);
}

// Keys pressed in the editor: the command map's run their handlers, the editor's own
// go through area as single edits, and undo takes back one step at a time.
TEST(SourceEditor, KeysEditThroughTheModelAndUndoStepByStep) {
    const QString large(40000, u'x');
    const struct {
        const char* what;
        QString text;
        int selStart, selLength;
        const char* keys;
        QString want;
        int wantSelStart, wantSelLength, wantChanges, failure;
    } cases[] = {
        {"Select All is the menu's", "abc", 1, 0, "Ctrl+A", "abc", 0, 3, 0, 0},
        {"and fails past 32767", large, 1, 0, "Ctrl+A", large, 1, 0, 0, RuntimeFailure::Overflow},
        {"Bold is the menu's; each command is one step to undo", "a word", 2, 4,
         "Ctrl+B, Ctrl+B, Ctrl+Z, Ctrl+Z", "a word", 6, 0, 5, 0},
        {"typing, a break, undo, redo", "x", 1, 0, "A, B, Return, C, Ctrl+Z, Ctrl+Z, Ctrl+Y",
         "xab\r\n", 5, 0, 7, 0},
        {"Ctrl+Shift+Z redoes", "x", 1, 0, "A, Ctrl+Z, Ctrl+Shift+Z", "xa", 2, 0, 3, 0},
        {"delete a word and take it back", "one two", 7, 0, "Ctrl+Backspace, Ctrl+Z", "one two", 7,
         0, 2, 0},
    };
    FocusedEditor v;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        v.start(c.text, c.selStart, c.selLength);
        v.program.failures.clear();
        for (const QString& key : QString::fromLatin1(c.keys).split(", "))
            QTest::keySequence(&v.editor(), QKeySequence(key));
        EXPECT_EQ(v.area().text(), c.want);
        EXPECT_EQ(v.area().selStart(), c.wantSelStart);
        EXPECT_EQ(v.area().selLength(), c.wantSelLength);
        EXPECT_EQ(v.changes, c.wantChanges);
        EXPECT_EQ(v.editor().toPlainText(), QString(c.want).replace("\r\n", "\n"));
        EXPECT_EQ(v.program.failures.empty() ? 0 : v.program.failures[0].number(), c.failure);
    }
    // Opening a file assigns the whole text: nothing before it can be undone.
    const QString page = v.file("page.html", "<P>opened</P>");
    v.start("typed", 5, 0);
    QTest::keyClick(&v.editor(), Qt::Key_A);
    v.program.pickers.files = {page};
    v.run([&] { v.zelvo.mnuOpen(); });
    QTest::keySequence(&v.editor(), QKeySequence(QStringLiteral("Ctrl+Z")));
    EXPECT_EQ(v.area().text(), "<P>opened</P>");
}
