#pragma once

#include "pagedialog.h"

namespace zt {

// The address of a link: the selection becomes one, a caret in a link changes
// where it goes, a caret elsewhere gets a link that shows its address. Throws
// when the user cancels.
void runLinkDialog(QWidget* view, const PageCall& page);

} // namespace zt
