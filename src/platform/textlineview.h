#pragma once

#include "textcontrol.h"

#include <QLineEdit>

namespace zt {

// The one-line editor of a text box, for the short fields of the dialogs. Like
// TextEditView it shows the TextControl's text and follows every change the program
// makes; each edit of the user (a key, a paste, an undo) becomes one selection of the
// affected range followed by one SelText assignment on the control, so the Change
// chain runs once per edit. Enter is left to the dialog, where it presses the
// default button. Positions are those of the control: a line break the program put
// into the text counts as its two characters here too.
// One view per control; the control must outlive it.
class TextLineView : public QLineEdit {
    Q_OBJECT
public:
    explicit TextLineView(TextControl& control, QWidget* parent = nullptr);
    ~TextLineView() override;

    TextControl& control() const { return m_control; }

    // The box's background as the program sets it, 0x00BBGGRR.
    quint32 backColor() const { return m_backColor; }
    void setBackColor(quint32 bgr);

private:
    void showControl();
    void userEdited(const QString& now);
    void mirrorSelection();

    TextControl& m_control;
    // The control's text as the editor shows it now.
    QString m_shown;
    bool m_showing = false;
    bool m_mirroring = false;
    quint32 m_backColor;
};

} // namespace zt
