#pragma once

#include <QString>

#include <deque>
#include <optional>
#include <vector>

namespace zt {

// One edit of a text: at start, removed gave way to inserted.
struct TextEdit {
    int start = 0;
    QString removed;
    QString inserted;
};

// The undo and redo steps of one text. The edits one command makes (all those of
// one event) are one step, and so is a run of typed characters, each where the one
// before ended, as in any editor. The oldest steps are forgotten once the history
// holds thousands of steps or millions of characters.
class EditHistory {
public:
    // A new edit of before, made in event (0 outside any): the redo steps are gone.
    void record(const QString& before, TextEdit edit, bool typed, quint64 event);
    void clear();

    // The edit that takes the last step back, which moves to the redo list.
    std::optional<TextEdit> undo();
    // The edit that does the last undone step again.
    std::optional<TextEdit> redo();
    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }

private:
    void push(TextEdit edit);
    void trim();

    std::deque<TextEdit> m_undo;
    std::vector<TextEdit> m_redo;
    bool m_typingRun = false;
    quint64 m_lastEvent = 0;
    qsizetype m_characters = 0;
};

} // namespace zt
