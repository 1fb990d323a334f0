#pragma once

namespace zt {

class Form;

// Asks the desktop to keep the form's window above the others, where it is and as
// large as it is. Dialogs call it from their load, while still hidden.
void stayOnTop(Form& form);

// Puts the form's window in the middle of owner's window when owner is shown, in
// the middle of the screen otherwise, as a desktop places a dialog of a window.
void centreOver(Form& form, const Form* owner);

} // namespace zt
