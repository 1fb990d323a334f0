#pragma once

#include "linebreaks.h"
#include "textcontrol.h"

#include <QPlainTextEdit>

namespace zt {

// The editor of a text box. It shows the TextControl's text and follows every change
// the program makes to it; each edit of the user becomes one selection of the
// affected range followed by one SelText assignment on the control, so the program's
// Change chain runs once per keystroke, paste or cut. A selection made in the editor
// is mirrored into SelStart and SelLength without a Change. Enter types CR LF.
// Ctrl+Z takes back the control's last edit, Ctrl+Y and Ctrl+Shift+Z redo it. A key
// that a command of the window has is the command's, never the editor's.
// setReadOnly(true) turns it into a viewer whose text can still be selected.
// A very long line is shown as several lines, cut where the position map says; the
// cuts are the editor's own, never part of the text, the clipboard or a drag.
// One view per control; the control must outlive it.
class TextEditView : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit TextEditView(TextControl& control, QWidget* parent = nullptr);
    ~TextEditView() override;

    TextControl& control() const { return m_control; }
    // The text in the editor with its breaks as "\n", as QPlainTextEdit gives it, but
    // without the breaks that only cut a long line for display.
    QString toPlainText() const;

    // The user's cut and delete of the selection, each one edit of the control.
    void cutSelection();
    void deleteSelection();

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // Typed text joins the run of typing before it in the control's history.
    enum EditKind { Other, Typed };
    // Replaces model[start, start + length) with text as the user's edit.
    void replaceInModel(int start, int length, const QString& text, EditKind kind = Other);
    // Replaces what the cursor selects (document positions) with text of the user.
    void replaceSelected(const QTextCursor& cursor, const QString& plainText,
                         EditKind kind = Other);
    void editModel(const std::function<void()>& edit);
    bool isCommandKey(const QKeyEvent* event) const;
    int toModel(int documentPosition) const;
    // Whether the cursor selects nothing but the cut of a long line, or nothing at all.
    bool selectsNoText(const QTextCursor& cursor) const;
    bool handleEditingKey(QKeyEvent* event);
    void deleteBackward();
    void moveDroppedSelection(int dropPosition);

    void showControl(const TextChange& change);
    void applyToDocument(const TextChange& change);
    void showText();
    void keepGlyphsOfLongLines(int from, int to);
    void showSelection();
    void mirrorSelection();
    void documentChangedBehindUs();

    TextControl& m_control;
    // Where the breaks of the control's text lie, for the text the document shows now.
    linebreaks::PositionMap m_positions;
    // Set while the view itself edits the document or moves its cursor.
    bool m_showing = false;
    // Set while the view puts the editor's selection into the control.
    bool m_mirroring = false;
    bool m_resyncPending = false;
};

} // namespace zt
