#pragma once

#include "pagedialog.h"

namespace zt {

// Face, size and colour of the selected text. Throws when nothing is selected,
// before showing anything, and when the user cancels.
void runFontDialog(QWidget* view, const PageCall& page);

} // namespace zt
