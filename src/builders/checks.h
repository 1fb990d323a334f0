#pragma once

#include <QString>

namespace zt {

class Prompts;
class TextControl;

// The numeric check a dialog runs on every change of a number field. An empty text
// and anything the run time's numeric test accepts (sign, decimals, exponent: `1e3`
// passes) stay. Anything else brings the warning "Please enter only valid numerical
// data" and empties the field.
void checkNumeric(TextControl& field, Prompts& prompts);

// The stricter check of digits only, through the dialog's hidden `checkee`. The first
// character that is not 0 to 9 is taken out, the box "Invalid Value" says so, and the
// rest goes back into the field, or fallback when nothing is left. That write
// changes the field, so its own Change runs this again: each bad character gets a box
// of its own. A minus sign and a decimal point are refused too.
void checkDigits(TextControl& field, TextControl& checkee, Prompts& prompts,
                 const QString& fallback);

} // namespace zt
