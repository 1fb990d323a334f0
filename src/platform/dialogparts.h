#pragma once

#include "guard.h"

#include <QAbstractButton>
#include <QDialog>
#include <QStringList>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace zt {

class TextControl;
class TextEditView;
class TextLineView;

// The window of a dialog. It is never modal: the views stay usable behind it. Enter
// presses the default button and Esc the cancel button, so the keyboard goes through
// the dialog's own handlers; closing by the frame unloads the form.
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

// A control carries its program name as its object name, so it can be found by it.
QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption);

// A dialog is laid out from a table of its controls, one row a control, in the
// order and with the columns a dialog's description gives them:
//
//     layOut(window, {
//         // control, caption, default, place, limits
//         {text("txtWidth", ui.txtWidth, ui.txtWidthView), "&Width:", "", Place::Row, numeric},
//         {check("chkPercentage", ui.chkPercentage), "Percentage", "", Place::Beside},
//         {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
//     });
//
// Each control is made, named, given its default and put into its `ui` member.

// What a control is and which member of the dialog's `ui` receives it.
struct Field {
    enum Kind { Text, Memo, Check, Option, Combo, List, Button, Group, Widget };
    Kind kind;
    // The program's name of the control, given to the widget as its object name.
    const char* name;
    // Makes the widget with its rows, names it and fills the ui member.
    std::function<QWidget*(QWidget* parent)> make;
    // The text behind a one-line or multi-line text box.
    TextControl* model = nullptr;
};

// A one-line text box: the text in model, the box in view.
Field text(const char* name, TextControl& model, TextLineView*& view);
// A multi-line text box; Tab moves on to the next control.
Field memo(const char* name, TextControl& model, TextEditView*& view);
Field check(const char* name, QCheckBox*& box);
Field option(const char* name, QRadioButton*& option);
// A combo box whose text may also be typed. What is typed stays as typed: it is
// neither completed nor corrected to a row, nor added as one.
Field combo(const char* name, QComboBox*& combo, const QStringList& rows);
// A list showing all its rows, one selectable at a time.
Field list(const char* name, QListWidget*& list, const QStringList& rows);
// A list that drops down: one of its rows or none, nothing typed. It opens with no
// row selected unless the table gives a default.
Field dropList(const char* name, QComboBox*& list, const QStringList& rows);
Field button(const char* name, QPushButton*& button);
// A framed group with the caption; the controls placed InGroup after it go inside.
Field group(const char* name = "");
// A widget the dialog makes itself (a grid of cells, a status bar), without a caption.
Field widget(const char* name, std::function<QWidget*(QWidget* parent)> make);

// Where a control goes.
enum class Place {
    Row,     // a new row: the caption as the control's label, then the control
    Beside,  // on the row of the control before it, after that one, in its group too
    Line,    // a row of its own across the dialog; a text box's caption stands above
    InGroup, // in the group opened last: controls that show their own caption in
             // columns of three, others one a row after their label; a group
             // placed InGroup stands beside the group before it
    Accept,  // the button row at the foot: the default button, on Enter
    Cancel,  // the button row: the button that Esc and the frame's close press
    Help,    // the button row, on the help side
};

struct Control {
    Field field;
    // A text box's, combo's or list's label (an & marks the key that moves to it), or
    // the text of a check box, option, button or group.
    QString caption = {};
    // The design default: a text, a combo's text, a list's selected row, or "1" for a
    // ticked box and an option that is on.
    QString value = {};
    Place place = Place::Row;
    // Runs on every change of a text box's text once the design default is in.
    std::function<void(TextControl&)> limit = {};
    // For a text box that must not be empty when the dialog is accepted: the warning.
    QString required = {};
};
using Controls = std::vector<Control>;

// The buttons of the foot row, by what they do.
struct FootButtons {
    QPushButton* accept = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* help = nullptr;
};

// Makes the controls of the table in window and lays them out. A window with a
// multi-line text box may be resized, which grows the box; any other keeps the size
// its controls need.
FootButtons layOut(DialogWindow* window, const Controls& controls);

} // namespace zt
