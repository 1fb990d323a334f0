#pragma once

#include "edithistory.h"

#include <QString>

#include <functional>
#include <vector>

namespace zt {

// The text of a text box as the program edits it: a plain string (CR LF kept as two
// characters) with a selection. Every assignment fires Change synchronously, inside
// the assignment, before the next statement of the caller runs; a failure thrown by
// a Change handler comes out of the assignment.
// What one assignment did to the text, for a view that follows it: `removed`, the
// text that stood at start, gave way to `inserted` new characters. A change of the
// selection alone removes and inserts nothing.
struct TextChange {
    int start = 0;
    QString removed;
    int inserted = 0;

    bool changesText() const { return !removed.isEmpty() || inserted > 0; }
};

class TextControl {
public:
    using Handler = std::function<void()>;
    using Observer = std::function<void(const TextChange& change)>;

    const QString& text() const { return m_text; }
    // Replaces the whole text; the caret goes to 0. Fires Change. The history of
    // edits starts afresh.
    void setText(const QString& text);

    int selStart() const { return m_selStart; }
    // Negative fails with 380; past the end is clamped. The selection length becomes 0.
    void setSelStart(int start);

    int selLength() const { return m_selLength; }
    // Negative fails with 380; past the end is clamped.
    void setSelLength(int length);

    QString selText() const;
    // Replaces the selection; the caret goes behind the new text. Fires Change.
    void setSelText(const QString& text);
    // The same for text the user typed: a run of it is one step of the history.
    void typeSelText(const QString& text);

    // Takes the last step of the history back, or does the last undone one again,
    // each as one edit that fires Change once, with the caret behind what it put in.
    // Nothing to undo or redo does nothing. A step is what one event did to the
    // text, or a run of typing.
    void undo();
    void redo();
    bool canUndo() const { return m_history.canUndo(); }
    bool canRedo() const { return m_history.canRedo(); }

    // A free value a form may keep with the control.
    QString tag;

    // Change handlers of the program, run in order on every assignment.
    void addChangeHandler(Handler handler) { m_changeHandlers.push_back(std::move(handler)); }
    // A view's listener, told of every change of text or selection, with what changed
    // in the text, so that it can follow without reading the whole text. Views never
    // throw.
    void setObserver(Observer observer) { m_observer = std::move(observer); }

private:
    void replaceSelection(const QString& text, bool typed);
    void apply(const TextEdit& edit);
    void fireChange();
    // Every change of the text must say what it replaced, or a view falls out of step.
    void notifyObserver(const TextChange& change);

    QString m_text;
    int m_selStart = 0;
    int m_selLength = 0;
    EditHistory m_history;
    std::vector<Handler> m_changeHandlers;
    Observer m_observer;
};

} // namespace zt
