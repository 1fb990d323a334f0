#pragma once

#include "pagedialog.h"

namespace zt {

// Finds text in the page, match by match, until the user closes the dialog. Only
// the selection moves.
void runFindDialog(QWidget* view, const PageCall& page);

} // namespace zt
