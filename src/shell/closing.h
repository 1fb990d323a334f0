#pragma once

#include <QStringList>

namespace zt {

class FormRegistry;

// The dialogs that close with a main window, by name, in the program's order. The
// list names the program's whole set; a form not built yet is passed over.
const QStringList& closingForms();

// Unloads the loaded forms of closingForms(), in that order.
void unloadDialogs(FormRegistry& forms);

} // namespace zt
