#include "views.h"

#include "platform/texteditview.h"
#include "shell/commandmap.h"

#include <QAction>
#include <QFile>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// One line per item, as the expected maps are written: indent by depth, then
// name|caption|key|state.
void listMenu(const QList<QAction*>& actions, int depth, QStringList& out) {
    for (QAction* a : actions) {
        if (a->isSeparator())
            continue;
        const QString state = a->isChecked() ? "checked" : !a->isEnabled() ? "disabled" : "";
        out << QString(depth * 2, ' ') + a->objectName() + '|' + a->text() + '|' +
                   a->shortcut().toString() + '|' + state;
        if (a->menu())
            listMenu(a->menu()->actions(), depth + 1, out);
    }
}

QStringList menuTree(Form& form) {
    QStringList out;
    listMenu(static_cast<QMainWindow*>(form.window())->menuBar()->actions(), 0, out);
    return out;
}

QStringList expected(const char* file) {
    QFile f(QStringLiteral(ZT_TEST_DATA "/") + file);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << file;
    return QString::fromUtf8(f.readAll()).split('\n', Qt::SkipEmptyParts);
}

void expectSameLines(const QStringList& actual, const QStringList& wanted) {
    EXPECT_EQ(actual.size(), wanted.size());
    for (int i = 0; i < std::min(actual.size(), wanted.size()); ++i)
        EXPECT_EQ(actual[i], wanted[i]) << "line " << i + 1;
}

QStringList toolbarKeys(Form& form) {
    QStringList out;
    for (QAction* a :
         static_cast<QMainWindow*>(form.window())->findChild<QToolBar*>("Toolbar1")->actions())
        out << (a->isSeparator() ? QString("|") : a->objectName() + '=' + a->toolTip());
    return out;
}

} // namespace

TEST(CommandMap, MenusStandAsDesignedAndFixedMarksStayWhenClicked) {
    Views v;
    v.zelvo.ui.mnuEditor->trigger();
    v.tessara.ui.mnuTessara->trigger();
    expectSameLines(menuTree(v.zelvo), expected("menus_zelvo.txt"));
    expectSameLines(menuTree(v.tessara), expected("menus_tessara.txt"));
}

TEST(CommandMap, ToolbarKeysTipsAndGroups) {
    Views v;
    // The two bars share their file, clipboard and format groups.
    const QString files = "New=New,Open=Open,Save=Save,Forward=Preview,Print=Print,|,Copy=Copy,"
                          "Cut=Cut,Paste=Paste,Delete=Delete,|,";
    const QString format = "Bold=Bold,Italic=Italic,Underline=Underline,|,Align Left=Align Left,"
                           "Center=Center,Align Right=Align Right,|,Find=Find,|,";
    EXPECT_EQ(toolbarKeys(v.zelvo).join(','), files + format + "btnOpenTessara=Open Tessara");
    EXPECT_EQ(toolbarKeys(v.tessara).join(','), files + "Undo=Undo,Redo=Redo,|," + format +
                                                    "Properties=Properties,|,showCode=Open Editor");
}

TEST(CommandMap, ToolbarKeysDispatchAndUnknownKeysDoNothing) {
    Views v;
    v.area().setText("keep [gone] keep");
    v.area().setSelStart(5);
    v.area().setSelLength(6);
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("Delete"); });
    EXPECT_EQ(v.area().text(), "keep  keep");

    v.run([&] { v.zelvo.Toolbar1_ButtonClick("No Such Key"); });
    v.run([&] { v.tessara.Toolbar1_ButtonClick("delete"); });
    EXPECT_EQ(v.area().text(), "keep  keep") << "keys compare exactly";

    v.tessara.show();
    v.run([&] { v.tessara.Toolbar1_ButtonClick("showCode"); });
    EXPECT_TRUE(v.zelvo.isVisible());
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("btnOpenTessara"); });
    EXPECT_TRUE(v.tessara.isVisible());

    // The visual view passes over a failure in the dispatch: Cancel in Open would
    // otherwise end the program.
    v.zelvo.ui.star.setText("");
    v.program.pickers.files = {std::nullopt};
    EXPECT_TRUE(v.run([&] { v.tessara.Toolbar1_ButtonClick("Open"); }));
    EXPECT_TRUE(v.program.failures.empty());
    v.program.pickers.files = {std::nullopt};
    v.run([&] { v.tessara.ui.mnuOpen->trigger(); });
    EXPECT_EQ(failure(v.program), RuntimeFailure::Cancel) << "the menu item has no such mercy";
}

TEST(CommandMap, F2SwitchesToTheSourceView) {
    Views v;
    v.tessara.show();
    v.tessara.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v.tessara.window()));
    QTest::keyClick(v.tessara.window(), Qt::Key_F2);
    EXPECT_TRUE(v.zelvo.isVisible()) << "F2 is the switch to the source view";
    EXPECT_FALSE(v.tessara.isVisible());
}

TEST(CommandMap, FindNextFollowsTheSearchTextWhenTheEditMenuOpens) {
    Views v;
    EXPECT_TRUE(v.zelvo.ui.mnuFindNext->isEnabled()) << "enabled until the menu first opens";
    emit v.zelvo.ui.mnuEdit->menu()->aboutToShow();
    EXPECT_FALSE(v.zelvo.ui.mnuFindNext->isEnabled());
    v.zelvo.ui.txtSearch.setText("needle");
    emit v.zelvo.ui.mnuEdit->menu()->aboutToShow();
    EXPECT_TRUE(v.zelvo.ui.mnuFindNext->isEnabled());
}

TEST(CommandMap, FormatBarsCrossTheIndentButtonsAndShowStatusTexts) {
    Views v;
    auto handlerOf = [](const auto& buttons, const char* name) {
        for (const auto& row : buttons)
            if (QLatin1String(row.name) == QLatin1String(name))
                return row.handler;
        return decltype(buttons.front().handler){};
    };
    EXPECT_EQ(handlerOf(zelvoFormatButtons(), "btnIndent"), &Zelvo::mnuOutdent);
    EXPECT_EQ(handlerOf(zelvoFormatButtons(), "btnOutdent"), &Zelvo::mnuIndent);
    EXPECT_EQ(handlerOf(tessaraFormatButtons(), "btnIndent"), &Tessara::mnuOutdent);
    EXPECT_EQ(handlerOf(tessaraFormatButtons(), "btnOutdent"), &Tessara::mnuIndent);
    EXPECT_EQ(v.tessara.ui.btnOutdent->toolTip(), "Indent text");
    EXPECT_EQ(v.tessara.ui.btnIndent->toolTip(), "Outdent text");
    EXPECT_EQ(v.zelvo.ui.btnHighlight->toolTip(), "Hihlight Selected Text");

    const struct {
        QToolButton* button;
        const char* status;
    } moves[] = {
        {v.tessara.ui.btnOutdent, "Outdent Delected"},
        {v.tessara.ui.btnIndent, "Indent Selected"},
        {v.tessara.ui.btnForm, "Insert Form and form elements such as textbox, button etc."},
        {v.tessara.ui.remFormatting, "Remove formatting (such as bold, etc.) of selected text"}};
    for (const auto& m : moves) {
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), QPointF(3, 3), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m.button, &move);
        EXPECT_EQ(v.tessara.ui.StatusBar1->panelText(1), m.status);
    }
    // The text stays until the pointer moves over the page.
    v.run([&] { v.tessara.txtComp_onmousemove(); });
    EXPECT_EQ(v.tessara.ui.StatusBar1->panelText(1), "Ready: Zelvo Tessara 3.0 - By: Orvek");
}

TEST(CommandMap, PopupButtonsOpenTheirMenusAtThePointer) {
    Views v;
    v.tessara.show();
    const struct {
        QToolButton* button;
        QAction* menu;
    } popups[] = {{v.tessara.ui.btnTools, v.tessara.ui.mnuTools},
                  {v.tessara.ui.btnTable, v.tessara.ui.mnuTable},
                  {v.tessara.ui.btnForm, v.tessara.ui.mnuForm}};
    for (const auto& p : popups) {
        QCursor::setPos(200, 150);
        p.button->click();
        EXPECT_TRUE(p.menu->menu()->isVisible()) << p.menu->objectName().toStdString();
        p.menu->menu()->hide();
    }
}

// Every key of the source view's menus is the menu's, also while the editor has the
// focus: the editor does not claim it first.
TEST(CommandMap, EveryKeyOfTheSourceViewIsItsMenusInTheEditor) {
    Views v;
    int keys = 0;
    for (QAction* item : v.zelvo.window()->findChildren<QAction*>()) {
        for (const QKeySequence& key : item->shortcuts()) {
            QKeyEvent press(QEvent::ShortcutOverride, key[0].key(), key[0].keyboardModifiers());
            press.setAccepted(false);
            QCoreApplication::sendEvent(v.zelvo.ui.areaView, &press);
            EXPECT_FALSE(press.isAccepted()) << key.toString().toStdString();
            ++keys;
        }
    }
    EXPECT_GT(keys, 15);
}

// Keys pressed in the editor run the menus' handlers, whose edits undo takes back
// one command at a time; editor and area agree all the way.
TEST(CommandMap, MenuKeysInTheEditorRunTheirHandlersAndUndoTakesBackACommand) {
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
    };
    Views v;
    TextEditView& editor = *v.zelvo.ui.areaView;
    v.zelvo.show();
    v.zelvo.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v.zelvo.window()));
    editor.setFocus();
    int changes = 0;
    v.area().addChangeHandler([&] { ++changes; });
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        v.area().setText(c.text);
        v.area().setSelStart(c.selStart);
        v.area().setSelLength(c.selLength);
        changes = 0;
        v.program.failures.clear();
        QTest::keySequence(&editor, QKeySequence(QString::fromLatin1(c.keys)));
        EXPECT_EQ(v.area().text(), c.want);
        EXPECT_EQ(v.area().selStart(), c.wantSelStart);
        EXPECT_EQ(v.area().selLength(), c.wantSelLength);
        EXPECT_EQ(changes, c.wantChanges);
        EXPECT_EQ(editor.toPlainText(), QString(c.want).replace("\r\n", "\n"));
        EXPECT_EQ(v.program.failures.empty() ? 0 : v.program.failures[0].number(), c.failure);
    }
}
