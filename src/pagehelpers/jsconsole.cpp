#include "jsconsole.h"

namespace zt {

JSConsole::JSConsole(FormRegistry& forms) : Form(forms) {}

JSConsole::~JSConsole() = default;

} // namespace zt
