// The entry points of the designer's commands whose windows arrive with later parts
// of the program: the tip of the day and About. Each is wired to its menu item
// already and does nothing yet; a command leaves this file when it is built.
#include "morvane.h"

namespace zt {

void morvane::mnuShowTip() {}
void morvane::mnuAbout() {}

} // namespace zt
