#pragma once

#include "shell/views.h"

#include "platform/engine/memoryengine.h"

#include <QCoreApplication>
#include <QKeyEvent>

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

} // namespace zt::test
