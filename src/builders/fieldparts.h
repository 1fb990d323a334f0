#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"

#include <QStringList>

class QCheckBox;
class QComboBox;
class QPushButton;
class QWidget;

namespace zt {

class Pickers;
class Prompts;
class TextControl;

// How a form-field dialog is set up when the form designer has it instead of a view:
// its own name and caption, no Help, Cancel only where it says, and its number fields
// go out as typed.
struct FieldVariant {
    ElementDialog::Setup setup;
    bool cancel = true;
    bool help = true;
    bool checksNumbers = true;
};

// The designer's field dialog of the name and caption: it writes into the designer's
// strip, floats, and has neither Cancel nor Help unless told.
FieldVariant designerField(const char* name, const QString& caption, bool cancel = false);

// The foot of a field dialog: Insert, then Cancel and Help where the variant has them.
void addFoot(Controls& rows, const FieldVariant& variant, QPushButton*& btnInsert,
             QPushButton*& CancelButton, QPushButton*& btnHelp);

// The style panel of the text box dialogs: a tick that enables the colours, the font,
// its size, bold and italics. The colour buttons pick into their combos.
struct StylePanel {
    explicit StylePanel(Pickers& pickers) : comdlg(pickers) {}

    // The tick with its caption and the group of the panel; the font list opens with
    // font, and the rows are filled at load.
    Controls rows(const char* useStyleCaption, const char* font);
    // Wires the tick and the colour buttons once the window is made; the panel starts
    // disabled.
    void wire();
    void chkUseStyle_Click();
    void btnColour_Click();
    void btnBGColour_Click();
    // `style="..."` when the panel is ticked, else nothing.
    QString style(const QString& backgroundProperty) const;

    QCheckBox* chkUseStyle = nullptr;
    QComboBox* cmbcolour = nullptr;
    QPushButton* btnColour = nullptr;
    QComboBox* cmbbgcolour = nullptr;
    QPushButton* btnBGColour = nullptr;
    QComboBox* listFont = nullptr;
    QComboBox* cmbFontSize = nullptr;
    QCheckBox* chkBold = nullptr;
    QCheckBox* chkItalics = nullptr;
    CommonDialog comdlg;
};

// What the form-field dialogs have in common beyond the element dialog itself.

// An empty name gets the warning "A valid name was not found" and true. The focus
// stays where it was: the box only ever answers OK, and the focus would only move on
// a Retry.
bool warnedOfNoName(const TextControl& txtName, Prompts& prompts);

// The rows of a font list: the screen's fonts but the first.
void fillFontList(QComboBox& listFont, const QStringList& screenFonts);

// The sizes a text box's font may be given, in points.
const QStringList& fontSizes();

// Enables or disables each of the widgets.
void enableAll(std::initializer_list<QWidget*> widgets, bool enabled);

} // namespace zt
