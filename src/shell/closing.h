#pragma once

namespace zt {

class FormRegistry;

// Unloads the dialogs that close with a main window, in the program's order.
// Forms join the one list in closing.cpp as they come.
void unloadDialogs(FormRegistry& forms);

} // namespace zt
