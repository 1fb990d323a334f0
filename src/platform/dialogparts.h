#pragma once

#include "guard.h"

#include <QAbstractButton>
#include <QDialog>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace zt {

class TextControl;
class TextEditView;
class TextLineView;

// The window of an element dialog. It is never modal: the views stay usable behind
// it. Enter presses the default button and Esc the cancel button, so the keyboard
// goes through the dialog's own handlers; closing by the frame unloads the form.
class DialogWindow : public QDialog {
public:
    DialogWindow(const QString& name, const QString& caption);

    void setCancelButton(QAbstractButton* button) { m_cancel = button; }

protected:
    void reject() override;

private:
    QAbstractButton* m_cancel = nullptr;
};

// Runs handler, through the guard, on every click of button.
template <class Handler> void onClick(QAbstractButton* button, Handler handler) {
    QObject::connect(button, &QAbstractButton::clicked, button,
                     guarded([handler](bool) { handler(); }));
}

// Controls carry their program names as object names, so they can be found by them.
QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption);
QCheckBox* makeCheck(QWidget* parent, const char* name, const QString& caption);
QRadioButton* makeOption(QWidget* parent, const char* name, const QString& caption);
// A combo box whose text may also be typed, with its rows.
QComboBox* makeCombo(QWidget* parent, const char* name, const QStringList& rows);
QListWidget* makeList(QWidget* parent, const char* name, const QStringList& rows);
// A field's caption; an & in it marks the key that moves to the field.
QLabel* makeLabel(QWidget* parent, const QString& caption, QWidget* field);
TextLineView* makeLine(QWidget* parent, const char* name, TextControl& field);
TextEditView* makeText(QWidget* parent, const char* name, TextControl& field);

// The dialog's row of buttons, in the order and places of the desktop's own dialogs. The accept
// button is the default one, the cancel button answers Esc.
QDialogButtonBox* makeButtonRow(DialogWindow* window, QPushButton* accept, QPushButton* cancel,
                                QPushButton* help);

} // namespace zt
