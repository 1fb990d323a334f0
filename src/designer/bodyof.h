#pragma once

#include <QString>

namespace zt {

// The text between the first "<body>" and the last "</body>" of a page, as the form
// designer saves and generates it and the Layout Manager keeps it. Only the bare
// tag counts: a body tag with attributes is not found, and the text then starts at
// the sixth character, inside the head. Both positions are held in 16 bits, so a
// page whose tags lie beyond character 32767 fails with the overflow.
QString BodyOf(const QString& d);

} // namespace zt
