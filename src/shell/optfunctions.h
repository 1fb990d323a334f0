#pragma once

#include <QString>

namespace zt {

class FormRegistry;

// Shows the help page of that bare file name from the program's misc folder in
// frmHelp. A page that cannot be read ends it silently, with no window.
void showHelpPage(FormRegistry& forms, const QString& page);

} // namespace zt
