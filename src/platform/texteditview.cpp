#include "texteditview.h"

#include "guard.h"
#include "linebreaks.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTextBlock>

#include <algorithm>

namespace zt {

namespace {

bool isUndoKey(const QKeyEvent* event) {
    return event->matches(QKeySequence::Undo) ||
           event->keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_Z);
}

bool isRedoKey(const QKeyEvent* event) {
    const QKeyCombination pressed = event->keyCombination();
    return event->matches(QKeySequence::Redo) ||
           pressed == QKeyCombination(Qt::ControlModifier, Qt::Key_Y) ||
           pressed == QKeyCombination(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z);
}

} // namespace

TextEditView::TextEditView(TextControl& control, QWidget* parent)
    : QPlainTextEdit(parent), m_control(control) {
    // Every edit goes through the control, whose history is the program's business.
    setUndoRedoEnabled(false);
    {
        QScopedValueRollback showing(m_showing, true);
        showText();
    }
    showSelection();
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &TextEditView::mirrorSelection);
    connect(this, &QPlainTextEdit::selectionChanged, this, &TextEditView::mirrorSelection);
    connect(document(), &QTextDocument::contentsChange, this,
            &TextEditView::documentChangedBehindUs);
    m_control.setObserver([this](const TextChange& change) { showControl(change); });
}

// What the user has in the editor, as the control holds it: the document's text less the
// breaks that only cut a long line for display.
QString TextEditView::toPlainText() const {
    const QString shown = QPlainTextEdit::toPlainText();
    if (m_resyncPending)
        return shown;
    return m_positions.withoutDisplayBreaks(m_control.text(), shown);
}

TextEditView::~TextEditView() {
    m_control.setObserver(nullptr);
    // The base class still moves the cursor while it dies; nothing of ours may run then.
    disconnect(this, nullptr, this, nullptr);
    disconnect(document(), nullptr, this, nullptr);
}

void TextEditView::cutSelection() {
    if (isReadOnly() || !textCursor().hasSelection())
        return;
    copy();
    replaceSelected(textCursor(), QString());
}

void TextEditView::deleteSelection() {
    if (isReadOnly() || !textCursor().hasSelection())
        return;
    replaceSelected(textCursor(), QString());
}

// Source text needs no ligatures or kerning, and shaping a long line costs many times
// more than looking up its glyphs; scripts that need shaping keep it whatever the font.
void TextEditView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && !(font().styleStrategy() & QFont::PreferNoShaping)) {
        QFont unshaped = font();
        unshaped.setStyleStrategy(
            QFont::StyleStrategy(unshaped.styleStrategy() | QFont::PreferNoShaping));
        setFont(unshaped);
    }
}

// The commands of the window the editor sits in take their keys before the
// editor's own bindings do: Ctrl+A is the program's Select All, not the widget's.
bool TextEditView::isCommandKey(const QKeyEvent* event) const {
    const QKeySequence pressed(
        QKeyCombination(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key())));
    const QList<QAction*> actions = window()->findChildren<QAction*>();
    return std::any_of(actions.begin(), actions.end(), [&](const QAction* action) {
        return action->shortcuts().contains(pressed);
    });
}

bool TextEditView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isCommandKey(static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void TextEditView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    // A command's key arrives here only while its item is disabled, and then it
    // does nothing.
    if (isCommandKey(event))
        return;
    if (!isReadOnly() && handleEditingKey(event))
        return;
    const int before = textCursor().position();
    QPlainTextEdit::keyPressEvent(event);
    // The cut of a long line is no character of the text: a move that only stepped over
    // one goes on to the next character, word or line.
    const int after = textCursor().position();
    if (after != before && toModel(after) == toModel(before))
        QPlainTextEdit::keyPressEvent(event);
}

int TextEditView::toModel(int documentPosition) const {
    return m_positions.toModelPosition(m_control.text(), documentPosition);
}

bool TextEditView::selectsNoText(const QTextCursor& cursor) const {
    return toModel(cursor.selectionStart()) == toModel(cursor.selectionEnd());
}

// Every key that would change the text is dealt with here, if only by refusing it;
// false leaves the key to the base class, which then only moves, selects or copies.
bool TextEditView::handleEditingKey(QKeyEvent* event) {
    QTextCursor cursor = textCursor();
    // A step that reaches only the cut of a long line is taken once more.
    const auto deleteUnlessSelected = [&](auto extend) {
        if (!cursor.hasSelection()) {
            extend();
            if (selectsNoText(cursor))
                extend();
        }
        replaceSelected(cursor, QString());
    };
    const auto extendTo = [&](QTextCursor::MoveOperation move) {
        return [&cursor, move] { cursor.movePosition(move, QTextCursor::KeepAnchor); };
    };

    if (event->matches(QKeySequence::Cut)) {
        cutSelection();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (isRedoKey(event)) {
        editModel([this] { m_control.redo(); });
    } else if (isUndoKey(event)) {
        editModel([this] { m_control.undo(); });
    } else if (event->matches(QKeySequence::DeleteStartOfWord)) {
        deleteUnlessSelected(extendTo(QTextCursor::PreviousWord));
    } else if (event->matches(QKeySequence::DeleteEndOfWord)) {
        deleteUnlessSelected(extendTo(QTextCursor::NextWord));
    } else if (event->matches(QKeySequence::DeleteEndOfLine)) {
        deleteUnlessSelected([&] {
            if (cursor.atBlockEnd())
                cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            else
                cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        });
    } else if (event->matches(QKeySequence::DeleteCompleteLine)) {
        cursor.movePosition(QTextCursor::StartOfBlock);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        replaceSelected(cursor, QString());
    } else if (event->matches(QKeySequence::Delete)) {
        deleteUnlessSelected(extendTo(QTextCursor::NextCharacter));
    } else if (event->key() == Qt::Key_Backspace &&
               !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier))) {
        deleteBackward();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        replaceSelected(cursor, QStringLiteral("\n"));
    } else if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        // Tab reaches the editor only when it does not move the focus.
        if (event->key() == Qt::Key_Backtab || (event->modifiers() & ~Qt::KeypadModifier))
            event->ignore();
        else
            replaceSelected(cursor, QStringLiteral("\t"), Typed);
    } else if (event->key() == Qt::Key_Direction_L || event->key() == Qt::Key_Direction_R) {
        // A plain text box has no per-paragraph direction to switch.
    } else {
        const QString text = event->text();
        const Qt::KeyboardModifiers mods = event->modifiers();
        const bool command = (mods & Qt::MetaModifier) ||
                             ((mods & Qt::ControlModifier) && !(mods & Qt::AltModifier));
        if (text.isEmpty() || !text.front().isPrint() || command)
            return false;
        replaceSelected(cursor, text, Typed);
    }
    return true;
}

void TextEditView::deleteBackward() {
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection()) {
        int from = cursor.position() - 1;
        if (from > 0 && toModel(from) == toModel(from + 1))
            --from; // the cut of a long line, which is no character of the text
        if (from < 0)
            return;
        // A break is one character of the document, so a CR LF pair of the control goes
        // whole; so does a surrogate pair.
        if (from > 0 && document()->characterAt(from).isLowSurrogate() &&
            document()->characterAt(from - 1).isHighSurrogate())
            --from;
        cursor.setPosition(from, QTextCursor::KeepAnchor);
    }
    replaceSelected(cursor, QString());
}

void TextEditView::inputMethodEvent(QInputMethodEvent* event) {
    if (isReadOnly() || (event->commitString().isEmpty() && event->replacementLength() == 0)) {
        QPlainTextEdit::inputMethodEvent(event);
        return;
    }
    QTextCursor cursor = textCursor();
    if (event->replacementLength() > 0 && !cursor.hasSelection()) {
        const int from = cursor.position() + event->replacementStart();
        cursor.setPosition(std::max(from, 0));
        cursor.setPosition(
            std::min(from + event->replacementLength(), document()->characterCount() - 1),
            QTextCursor::KeepAnchor);
    }
    QPointer<TextEditView> self(this);
    replaceSelected(cursor, event->commitString(), Typed);
    if (!self)
        return;
    // What is still being composed stays with the base class: it is drawn, not stored.
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QPlainTextEdit::inputMethodEvent(&composing);
    event->accept();
}

void TextEditView::insertFromMimeData(const QMimeData* source) {
    if (isReadOnly() || !source || !source->hasText())
        return;
    replaceSelected(textCursor(), source->text());
}

// The clipboard and a drag get the selected text as the control has it, breaks as "\n",
// without the cuts of long lines.
QMimeData* TextEditView::createMimeDataFromSelection() const {
    const QTextCursor cursor = textCursor();
    const int start = toModel(cursor.selectionStart());
    const int end = toModel(cursor.selectionEnd());
    auto* data = new QMimeData;
    data->setText(linebreaks::toDocument(QStringView(m_control.text()).sliced(start, end - start)));
    return data;
}

void TextEditView::contextMenuEvent(QContextMenuEvent* event) {
    const bool editable = !isReadOnly();
    const bool selected = textCursor().hasSelection();
    QMenu menu(this);
    menu.addAction(tr("&Undo"), this, [this] { editModel([this] { m_control.undo(); }); })
        ->setEnabled(editable && m_control.canUndo());
    menu.addAction(tr("&Redo"), this, [this] { editModel([this] { m_control.redo(); }); })
        ->setEnabled(editable && m_control.canRedo());
    menu.addSeparator();
    menu.addAction(tr("Cu&t"), this, &TextEditView::cutSelection)->setEnabled(editable && selected);
    menu.addAction(tr("&Copy"), this, &QPlainTextEdit::copy)->setEnabled(selected);
    menu.addAction(tr("&Paste"), this, &QPlainTextEdit::paste)->setEnabled(editable && canPaste());
    menu.addAction(tr("Delete"), this, &TextEditView::deleteSelection)
        ->setEnabled(editable && selected);
    menu.addSeparator();
    menu.addAction(tr("Select All"), this, &QPlainTextEdit::selectAll)
        ->setEnabled(!document()->isEmpty());
    menu.exec(event->globalPos());
}

void TextEditView::dropEvent(QDropEvent* event) {
    // Clears the drop caret the base class draws while dragging.
    QDragLeaveEvent leave;
    QPlainTextEdit::dragLeaveEvent(&leave);
    if (isReadOnly() || !event->mimeData()->hasText()) {
        event->ignore();
        return;
    }
    const int at = cursorForPosition(event->position().toPoint()).position();
    const bool fromHere = event->source() == this || event->source() == viewport();
    if (fromHere && event->dropAction() == Qt::MoveAction) {
        // Reported as a copy so that the drag's source removes nothing behind the control.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        moveDroppedSelection(at);
        return;
    }
    event->acceptProposedAction();
    QTextCursor cursor = textCursor();
    cursor.setPosition(at);
    replaceSelected(cursor, event->mimeData()->text());
}

// Moving a selection is one edit too: the span from the selection to the drop point is
// replaced by its own pieces in the new order.
void TextEditView::moveDroppedSelection(int dropPosition) {
    const QTextCursor selection = textCursor();
    const QString& text = m_control.text();
    const int from = m_positions.toModelPosition(text, selection.selectionStart());
    const int to = m_positions.toModelPosition(text, selection.selectionEnd());
    const int at = m_positions.toModelPosition(text, dropPosition);
    if (at >= from && at <= to)
        return;
    if (at < from)
        replaceInModel(at, to - at, text.mid(from, to - from) + text.mid(at, from - at));
    else
        replaceInModel(from, at - from, text.mid(to, at - to) + text.mid(from, to - from));
}

void TextEditView::replaceSelected(const QTextCursor& cursor, const QString& plainText,
                                   EditKind kind) {
    if (plainText.isEmpty() && selectsNoText(cursor))
        return;
    const QString& text = m_control.text();
    const int start = m_positions.toModelPosition(text, cursor.selectionStart());
    const int end = m_positions.toModelPosition(text, cursor.selectionEnd());
    replaceInModel(start, end - start, linebreaks::toModel(plainText), kind);
}

void TextEditView::replaceInModel(int start, int length, const QString& text, EditKind kind) {
    editModel([&] {
        {
            // The editor already shows this selection; only the control learns it.
            QScopedValueRollback mirroring(m_mirroring, true);
            m_control.setSelStart(start);
            m_control.setSelLength(length);
        }
        if (kind == Typed)
            m_control.typeSelText(text);
        else
            m_control.setSelText(text);
    });
}

// An edit of the user runs the program's Change chain, so it enters program code
// through the guard like any other event.
void TextEditView::editModel(const std::function<void()>& edit) {
    QPointer<TextEditView> self(this);
    Guard::run(edit);
    if (self)
        ensureCursorVisible();
}

// The control's observer: whatever changed, from the user or from the program, the
// document follows the control's edit, then its selection.
void TextEditView::showControl(const TextChange& change) {
    // A document out of step is shown anew from the control's text in a moment.
    if (m_resyncPending)
        return;
    QScopedValueRollback showing(m_showing, true);
    if (change.changesText())
        applyToDocument(change);
    // The editor already shows the selection it hands to the control.
    if (!m_mirroring)
        showSelection();
}

// The edit goes to the document as the smallest replacement of whole breaks, since
// the control's edit may cut a CR LF pair that the document shows as one character.
// Only the edit and one character on either side of it are read, so a keystroke
// costs the same anywhere in the text.
void TextEditView::applyToDocument(const TextChange& change) {
    const QString& text = m_control.text();
    const int from = std::max(change.start - 1, 0);
    const int end = change.start + change.inserted;
    const int to = int(std::min<qsizetype>(end + 1, text.size()));
    const QString before =
        text.mid(from, change.start - from) + change.removed + text.mid(end, to - end);
    const linebreaks::Replacement edit =
        linebreaks::difference(before, QStringView(text).sliced(from, to - from));
    const int start = from + edit.start;
    if (edit.removed == 0 && edit.inserted.isEmpty())
        return;
    if (start == 0 && edit.removed == text.size() - change.inserted + change.removed.size()) {
        showText();
        return;
    }
    const linebreaks::DocumentEdit shown =
        m_positions.replaced(text, start, QStringView(before).sliced(edit.start, edit.removed),
                             int(edit.inserted.size()));
    QTextCursor cursor(document());
    cursor.setPosition(shown.start);
    cursor.setPosition(shown.start + shown.removed, QTextCursor::KeepAnchor);
    cursor.insertText(shown.inserted);
    keepGlyphsOfLongLines(shown.start, int(shown.start + shown.inserted.size()));
}

// The whole text anew, when it all changed or the document went its own way.
void TextEditView::showText() {
    m_positions.reset(m_control.text());
    setPlainText(m_positions.documentText(m_control.text()));
    keepGlyphsOfLongLines(0, document()->characterCount());
}

// A line's layout forgets its glyphs once laid out, so every caret query and repaint
// shapes the whole line again: nothing for a short line, most of a keystroke's cost
// for a line of a hundred thousand characters. Long lines keep theirs.
void TextEditView::keepGlyphsOfLongLines(int from, int to) {
    constexpr int kLongLine = 1000;
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        if (block.length() > kLongLine)
            block.layout()->setCacheEnabled(true);
    }
}

void TextEditView::showSelection() {
    const QString& text = m_control.text();
    const int start = m_positions.toDocumentPosition(text, m_control.selStart());
    const int end =
        m_positions.toDocumentPosition(text, m_control.selStart() + m_control.selLength());
    QTextCursor cursor = textCursor();
    // The same range keeps the direction the user selected it in.
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end)
        return;
    QScopedValueRollback showing(m_showing, true);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextEditView::mirrorSelection() {
    // While the document is out of step with the control its positions mean nothing.
    if (m_showing || m_resyncPending)
        return;
    const QTextCursor cursor = textCursor();
    const QString& text = m_control.text();
    const int start = m_positions.toModelPosition(text, cursor.selectionStart());
    const int end = m_positions.toModelPosition(text, cursor.selectionEnd());
    if (start == m_control.selStart() && end - start == m_control.selLength())
        return;
    QScopedValueRollback mirroring(m_mirroring, true);
    m_control.setSelStart(start);
    m_control.setSelLength(end - start);
}

// Edits are all meant to pass through the control. Should some path of the base class
// still change the document (a drag moved out to another widget, say), the document
// is put back to the control's text once the event is over.
void TextEditView::documentChangedBehindUs() {
    if (m_showing || m_resyncPending)
        return;
    m_resyncPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_resyncPending = false;
            QScopedValueRollback showing(m_showing, true);
            showText();
            showSelection();
        },
        Qt::QueuedConnection);
}

} // namespace zt
