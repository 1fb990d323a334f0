#include "textlineview.h"

#include "guard.h"
#include "linebreaks.h"

#include <QPointer>
#include <QScopedValueRollback>

namespace zt {

namespace {

QColor fromBgr(quint32 bgr) {
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

quint32 toBgr(const QColor& colour) {
    return quint32(colour.red()) | quint32(colour.green()) << 8 | quint32(colour.blue()) << 16;
}

} // namespace

TextLineView::TextLineView(TextControl& control, QWidget* parent)
    : QLineEdit(parent), m_control(control), m_backColor(toBgr(palette().color(QPalette::Base))) {
    showControl();
    // Qt's line edit makes the edit itself; the view then hands it to the control as
    // the one replacement that turns the old text into the new.
    connect(this, &QLineEdit::textChanged, this, &TextLineView::userEdited);
    connect(this, &QLineEdit::selectionChanged, this, &TextLineView::mirrorSelection);
    connect(this, &QLineEdit::cursorPositionChanged, this, &TextLineView::mirrorSelection);
    m_control.setObserver([this](const TextChange&) { showControl(); });
}

TextLineView::~TextLineView() {
    m_control.setObserver(nullptr);
    disconnect(this, nullptr, this, nullptr);
}

void TextLineView::setBackColor(quint32 bgr) {
    m_backColor = bgr;
    QPalette colours = palette();
    const QColor back = fromBgr(bgr);
    colours.setColor(QPalette::Base, back);
    // The text stays readable on whatever colour was picked.
    colours.setColor(QPalette::Text, back.lightness() < 128 ? Qt::white : Qt::black);
    setPalette(colours);
}

// The control's observer: whatever changed, from the user or from the program, the
// editor is brought to the control's text, then to its selection.
void TextLineView::showControl() {
    if (m_mirroring)
        return;
    QScopedValueRollback showing(m_showing, true);
    if (text() != m_control.text())
        setText(m_control.text());
    m_shown = m_control.text();
    const int start = m_control.selStart();
    const int length = m_control.selLength();
    if (length > 0)
        setSelection(start, length);
    else if (hasSelectedText() || cursorPosition() != start)
        setCursorPosition(start);
}

void TextLineView::userEdited(const QString& now) {
    if (m_showing)
        return;
    const linebreaks::Replacement change = linebreaks::difference(m_shown, now);
    QPointer<TextLineView> self(this);
    Guard::run([&] {
        {
            QScopedValueRollback mirroring(m_mirroring, true);
            m_control.setSelStart(change.start);
            m_control.setSelLength(change.removed);
        }
        m_control.setSelText(change.inserted);
    });
    // A failure that reached the guard leaves the editor ahead of the control.
    if (self && text() != m_control.text())
        showControl();
}

void TextLineView::mirrorSelection() {
    // While the editor is out of step with the control its positions mean nothing.
    if (m_showing || text() != m_control.text())
        return;
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int length = hasSelectedText() ? int(selectedText().size()) : 0;
    if (start == m_control.selStart() && length == m_control.selLength())
        return;
    QScopedValueRollback mirroring(m_mirroring, true);
    m_control.setSelStart(start);
    m_control.setSelLength(length);
}

} // namespace zt
