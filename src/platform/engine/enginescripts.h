#pragma once

#include <QJsonObject>
#include <QString>

// The page engine's own scripts, kept as .js resources. They run in the page's
// application world, apart from the page's own scripts, and take their data as
// JSON: a value from the program never becomes part of a script's text.
namespace zt::enginescripts {

// A script that calls function, one of ours, with args as its one argument and
// answers with what it returns.
QString call(const char* function, const QJsonObject& args);

} // namespace zt::enginescripts
