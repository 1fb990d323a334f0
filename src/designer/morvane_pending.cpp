// The entry points of the designer's commands whose windows arrive with later parts
// of the program: the field dialogs, the tip of the day and About. Each is wired to
// its menu item and button already and does nothing yet; a command leaves this file
// when it is built.
#include "morvane.h"

namespace zt {

void morvane::mnuTextBox() {}
void morvane::mnuButton() {}
void morvane::mnuTextArea() {}
void morvane::mnuRadio() {}
void morvane::mnuCheckBox() {}
void morvane::mnuList() {}
void morvane::mnuDropDown() {}
void morvane::mnuFieldSet() {}
void morvane::mnuBrowseBox() {}
void morvane::mnuHidden() {}
void morvane::mnuShowTip() {}
void morvane::mnuAbout() {}

} // namespace zt
