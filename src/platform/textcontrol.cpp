#include "textcontrol.h"

#include "guard.h"
#include "runtimefailure.h"

#include <algorithm>
#include <utility>

namespace zt {

void TextControl::setText(const QString& text) {
    m_history.clear();
    const TextChange change{0, std::exchange(m_text, text), int(text.size())};
    m_selStart = 0;
    m_selLength = 0;
    notifyObserver(change);
    fireChange();
}

void TextControl::setSelStart(int start) {
    if (start < 0)
        throw RuntimeFailure::invalidPropertyValue();
    m_selStart = std::min<int>(start, m_text.size());
    m_selLength = 0;
    notifyObserver({});
}

void TextControl::setSelLength(int length) {
    if (length < 0)
        throw RuntimeFailure::invalidPropertyValue();
    m_selLength = std::min<int>(length, m_text.size() - m_selStart);
    notifyObserver({});
}

QString TextControl::selText() const {
    return m_text.mid(m_selStart, m_selLength);
}

void TextControl::setSelText(const QString& text) {
    replaceSelection(text, false);
}

void TextControl::typeSelText(const QString& text) {
    replaceSelection(text, true);
}

void TextControl::replaceSelection(const QString& text, bool typed) {
    const TextEdit edit{m_selStart, selText(), text};
    m_history.record(m_text, edit, typed, Guard::currentEvent());
    apply(edit);
}

void TextControl::undo() {
    if (const auto edit = m_history.undo())
        apply(*edit);
}

void TextControl::redo() {
    if (const auto edit = m_history.redo())
        apply(*edit);
}

void TextControl::apply(const TextEdit& edit) {
    const TextChange change{edit.start, edit.removed, int(edit.inserted.size())};
    m_text.replace(edit.start, edit.removed.size(), edit.inserted);
    m_selStart = edit.start + int(edit.inserted.size());
    m_selLength = 0;
    notifyObserver(change);
    fireChange();
}

void TextControl::fireChange() {
    // A handler may add handlers while it runs; those join from the next change on.
    // Each handler is copied before the call because adding one may move the list.
    const std::size_t count = m_changeHandlers.size();
    for (std::size_t i = 0; i < count; ++i) {
        Handler handler = m_changeHandlers[i];
        handler();
    }
}

void TextControl::notifyObserver(const TextChange& change) {
    if (m_observer)
        m_observer(change);
}

} // namespace zt
