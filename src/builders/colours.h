#pragma once

#include <QString>
#include <QStringList>

class QComboBox;

namespace zt {

class CommonDialog;
class TextLineView;

// The colour picker's value 0x00BBGGRR as `#RRGGBB`: the hexadecimal digits padded on
// the left to six, then read back to front in pairs. 255 gives #FF0000, 15 #0F0000.
QString hexColour(quint32 bgr);

// The colour button of a dialog, on the dialog's own CommonDialog. The picker keeps
// its colour between uses, so a Cancel after an earlier pick takes that colour
// again, and a Cancel on the first use gives 0. A colour of 0 counts as nothing
// taken, so black cannot be picked.
//
// Text-field form: the field's background becomes the colour and its text the
// `#RRGGBB`; with nothing taken the field is left as it was.
void pickHexColour(CommonDialog& comdlg, TextLineView& txtColour);
// List form: the combo's text becomes the `#RRGGBB`, or empty with nothing taken.
void pickHexColour(CommonDialog& comdlg, QComboBox& colours);

// The rows of every colour list, in their order; dialogs add their own rows.
const QStringList& namedColours();

} // namespace zt
