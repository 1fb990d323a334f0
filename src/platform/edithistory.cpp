#include "edithistory.h"

#include <algorithm>

namespace zt {

namespace {

constexpr std::size_t kMaxSteps = 5000;
constexpr qsizetype kMaxCharacters = 16 * 1024 * 1024;

qsizetype sizeOf(const TextEdit& edit) {
    return edit.removed.size() + edit.inserted.size();
}

// The step and a later edit of the text it left behind (between) as one edit: the
// span that covers both, as it read before the step and as it reads after the edit.
TextEdit joined(const TextEdit& step, const QString& between, const TextEdit& next) {
    const int stepEnd = step.start + int(step.inserted.size());
    const int nextEnd = next.start + int(next.removed.size());
    const int from = std::min(step.start, next.start);
    const int to = std::max(stepEnd, nextEnd);
    return {
        from,
        between.mid(from, step.start - from) + step.removed + between.mid(stepEnd, to - stepEnd),
        between.mid(from, next.start - from) + next.inserted + between.mid(nextEnd, to - nextEnd)};
}

} // namespace

void EditHistory::record(const QString& before, TextEdit edit, bool typed, quint64 event) {
    m_redo.clear();
    const bool sameEvent = event != 0 && event == m_lastEvent;
    m_lastEvent = event;
    if (!m_undo.empty() && sameEvent) {
        TextEdit step = joined(m_undo.back(), before, edit);
        m_characters -= sizeOf(m_undo.back());
        m_undo.pop_back();
        push(std::move(step));
        m_typingRun = false;
        return;
    }
    if (!m_undo.empty() && typed && m_typingRun && edit.removed.isEmpty() &&
        edit.start == m_undo.back().start + m_undo.back().inserted.size()) {
        m_undo.back().inserted += edit.inserted;
        m_characters += edit.inserted.size();
        trim();
        return;
    }
    push(std::move(edit));
    m_typingRun = typed;
}

void EditHistory::clear() {
    m_undo.clear();
    m_redo.clear();
    m_typingRun = false;
    m_lastEvent = 0;
    m_characters = 0;
}

std::optional<TextEdit> EditHistory::undo() {
    m_typingRun = false;
    m_lastEvent = 0;
    if (m_undo.empty())
        return std::nullopt;
    TextEdit step = std::move(m_undo.back());
    m_undo.pop_back();
    m_characters -= sizeOf(step);
    TextEdit back{step.start, step.inserted, step.removed};
    m_redo.push_back(std::move(step));
    return back;
}

std::optional<TextEdit> EditHistory::redo() {
    m_typingRun = false;
    m_lastEvent = 0;
    if (m_redo.empty())
        return std::nullopt;
    TextEdit step = std::move(m_redo.back());
    m_redo.pop_back();
    push(step);
    return step;
}

void EditHistory::push(TextEdit edit) {
    m_characters += sizeOf(edit);
    m_undo.push_back(std::move(edit));
    trim();
}

void EditHistory::trim() {
    while (m_undo.size() > 1 && (m_undo.size() > kMaxSteps || m_characters > kMaxCharacters)) {
        m_characters -= sizeOf(m_undo.front());
        m_undo.pop_front();
    }
}

} // namespace zt
