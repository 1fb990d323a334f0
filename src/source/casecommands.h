#pragma once

namespace zt {

class TextControl;

// Case changes of the selection of area. Each replaces the selection with its new
// form in one assignment, so the caret ends behind it with nothing selected.

// Every letter, by the platform's case rule.
void lowerCase(TextControl& area);
void upperCase(TextControl& area);

// Swaps the case of the ASCII letters, all but the last character: a one-character
// selection stays as it is.
void invertedCase(TextControl& area);

// Lower case throughout, then the first character in upper case and every ASCII letter
// behind a blank. Only a blank starts a word: a line break, a tab or a hyphen does not.
void titleCase(TextControl& area);

} // namespace zt
