#pragma once

#include "pagedialog.h"

namespace zt {

// A picture's source, alternate text and size: the selected picture's, or a new
// one in place of the selection. Browse offers pictures from folder, the
// document's (empty for a document without a file). Throws when the user cancels.
void runImageDialog(QWidget* view, const QString& folder, const PageCall& page);

} // namespace zt
