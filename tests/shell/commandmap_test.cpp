#include "views.h"

#include "platform/texteditview.h"
#include "shell/commandmap.h"

#include <QAction>
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

// The menu bar against its listing; a difference shows line by line.
void expectMenus(Form& form, const char* file) {
    QStringList out;
    listMenu(static_cast<QMainWindow*>(form.window())->menuBar()->actions(), 0, out);
    EXPECT_EQ(out.join('\n').toStdString(),
              readFile(QStringLiteral(ZT_TEST_DATA "/") + file).trimmed().toStdString());
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
    expectMenus(v.zelvo, "menus_zelvo.txt");
    expectMenus(v.tessara, "menus_tessara.txt");
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

TEST(CommandMap, ToolbarKeysAndF2DispatchAndUnknownKeysDoNothing) {
    Views v;
    v.area().setText("keep [gone] keep");
    v.area().setSelStart(5);
    v.area().setSelLength(6);
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("No Such Key"); });
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("delete"); });
    EXPECT_EQ(v.area().text(), "keep [gone] keep") << "keys compare exactly";
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("Delete"); });
    EXPECT_EQ(v.area().text(), "keep  keep");

    v.tessara.show();
    v.tessara.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v.tessara.window()));
    QTest::keyClick(v.tessara.window(), Qt::Key_F2);
    EXPECT_TRUE(v.zelvo.isVisible() && !v.tessara.isVisible()) << "F2 switches to the source";
    v.run([&] { v.zelvo.Toolbar1_ButtonClick("btnOpenTessara"); });
    EXPECT_TRUE(v.tessara.isVisible());

    // The visual view passes over a failure in the dispatch: Cancel in Open would
    // otherwise end the program.
    v.zelvo.ui.star.setText("");
    v.program.pickers.files = {std::nullopt, std::nullopt};
    EXPECT_TRUE(v.run([&] { v.tessara.Toolbar1_ButtonClick("Open"); }));
    v.run([&] { v.tessara.ui.mnuOpen->trigger(); });
    EXPECT_EQ(failure(v.program), RuntimeFailure::Cancel) << "the menu item has no such mercy";
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

// The indent buttons are crossed, and their tips and status texts with them; the
// tools, table and form buttons open their menus.
TEST(CommandMap, FormatBarsCrossTheIndentButtonsShowStatusTextsAndOpenPopups) {
    Views v;
    auto handlerOf = [](const auto& buttons, const char* name) {
        for (const auto& row : buttons)
            if (QLatin1String(row.name) == QLatin1String(name))
                return row.handler;
        return decltype(buttons.front().handler){};
    };
    EXPECT_EQ(handlerOf(zelvoFormatButtons(), "btnIndent"), &Zelvo::mnuOutdent);
    EXPECT_EQ(handlerOf(zelvoFormatButtons(), "btnOutdent"), &Zelvo::mnuIndent);
    // The visual view's are run through its buttons with the other commands.
    EXPECT_EQ(v.tessara.ui.btnOutdent->toolTip() + v.tessara.ui.btnIndent->toolTip() +
                  v.zelvo.ui.btnHighlight->toolTip(),
              "Indent textOutdent textHihlight Selected Text");

    v.tessara.show();
    const struct {
        QToolButton* button;
        const char* status;
        QAction* menu;
    } buttons[] = {{v.tessara.ui.btnOutdent, "Outdent Delected", nullptr},
                   {v.tessara.ui.btnIndent, "Indent Selected", nullptr},
                   {v.tessara.ui.btnForm,
                    "Insert Form and form elements such as textbox, button etc.",
                    v.tessara.ui.mnuForm},
                   {v.tessara.ui.remFormatting,
                    "Remove formatting (such as bold, etc.) of selected text", nullptr},
                   {v.tessara.ui.btnTools, nullptr, v.tessara.ui.mnuTools},
                   {v.tessara.ui.btnTable, nullptr, v.tessara.ui.mnuTable}};
    for (const auto& b : buttons) {
        if (b.status) {
            QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), QPointF(3, 3), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(b.button, &move);
            EXPECT_EQ(v.tessara.ui.StatusBar1->panelText(1), b.status);
        }
        if (b.menu) {
            QCursor::setPos(200, 150);
            b.button->click();
            EXPECT_TRUE(b.menu->menu()->isVisible()) << b.menu->objectName().toStdString();
            b.menu->menu()->hide();
        }
    }
    // The text stays until the pointer moves over the page.
    v.run([&] { v.tessara.txtComp_onmousemove(); });
    EXPECT_EQ(v.tessara.ui.StatusBar1->panelText(1), "Ready: Zelvo Tessara 3.0 - By: Orvek");
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
    // The text stays as it was in each: wanted are the selection and the Change count.
    const QString large(40000, u'x');
    const struct {
        const char* what;
        QString text;
        int selStart, selLength;
        const char* keys;
        const char* want;
        int failure;
    } cases[] = {
        {"Select All is the menu's", "abc", 1, 0, "Ctrl+A", "0 3 0", 0},
        {"and fails past 32767", large, 1, 0, "Ctrl+A", "1 0 0", RuntimeFailure::Overflow},
        {"Bold is the menu's; each command is one step to undo", "a word", 2, 4,
         "Ctrl+B, Ctrl+B, Ctrl+Z, Ctrl+Z", "6 0 5", 0},
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
        EXPECT_EQ(v.area().text(), c.text);
        EXPECT_EQ(editor.toPlainText(), c.text);
        EXPECT_EQ(
            QString("%1 %2 %3").arg(v.area().selStart()).arg(v.area().selLength()).arg(changes),
            c.want);
        EXPECT_EQ(failure(v.program), c.failure);
    }
}
