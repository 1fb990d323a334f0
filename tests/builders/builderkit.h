#pragma once

#include "shell/views.h"

#include "platform/engine/memoryengine.h"

#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QListWidget>

#include <gtest/gtest.h>

namespace zt::test {

// Both views with a page in the visual one, for the element dialogs' scenarios.
struct BuilderViews : Views {
    BuilderViews() {
        page().setDocumentHTML("<HTML><HEAD></HEAD><BODY>one two three</BODY></HTML>");
    }

    MemoryEngine& page() { return static_cast<MemoryEngine&>(txtComp()); }

    // Selects text in the source view.
    void selectInArea(const QString& text) {
        area().setSelStart(area().text().indexOf(text));
        area().setSelLength(text.size());
    }

    // Clicks a button as the user would, through the program's event guard.
    void click(QAbstractButton* button) {
        run([&] { button->click(); });
    }

    // Runs Tessara's insertion tick, as the timer would after a dialog delivered.
    void tick() { tessara.ui.Timer1.fire(); }

    // Lets unloaded forms go, as the end of the event would.
    void settle() { program.forms->collectUnloaded(); }

    template <class F> bool loaded() const { return program.forms->isLoaded<F>(); }

    QString setting(const QString& section, const QString& key) const {
        return program.settings.getSetting(document::kApp, section, key, "(absent)");
    }
    void store(const QString& section, const QString& key, const QString& value) {
        program.settings.saveSetting(document::kApp, section, key, value);
    }
};

// The user's keys, sent to a widget as the window system would.
inline void press(QWidget* widget, Qt::Key key, const QString& text = {}) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &up);
}

inline void type(QWidget* widget, const QString& text) {
    for (const QChar c : text)
        press(widget, Qt::Key(c.toUpper().unicode()), QString(c));
}

// The shown window of that object name or caption, or null.
inline QWidget* shown(const QString& name) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && (top->objectName() == name || top->windowTitle() == name))
            return top;
    return nullptr;
}

// The rows of a list box, top to bottom; none without a list.
inline QStringList rowsOf(const QListWidget* list) {
    QStringList rows;
    for (int i = 0; list && i < list->count(); ++i)
        rows << list->item(i)->text();
    return rows;
}

// Fills in a dialog's window: "name=text" types into a text box or a combo, or picks
// a list's row by number; a bare name clicks that box or button.
inline void fillIn(QWidget* window, const QStringList& entries) {
    for (const QString& entry : entries) {
        const QString name = entry.section('=', 0, 0), value = entry.section('=', 1);
        QWidget* w = window->findChild<QWidget*>(name);
        ASSERT_TRUE(w) << name.toStdString();
        if (auto* line = qobject_cast<TextLineView*>(w))
            line->control().setText(value);
        else if (auto* memo = qobject_cast<TextEditView*>(w))
            memo->control().setText(value);
        else if (auto* combo = qobject_cast<QComboBox*>(w))
            combo->setCurrentText(value);
        else if (auto* list = qobject_cast<QListWidget*>(w))
            list->setCurrentRow(value.toInt());
        else
            static_cast<QAbstractButton*>(w)->click();
    }
}

} // namespace zt::test
