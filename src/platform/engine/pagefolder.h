#pragma once

#include <QString>

// Which local files a page may show: those of its own folder tree, never a
// folder, a device, a pipe or a socket, and nothing hidden.
namespace zt::pagefolder {

// The top of the tree that a document in folder may show files of: its own
// folder and up to two above it, since real pages link ../_static/style.css and
// ../../images/logo.png; never the file system's root nor the home folder or one
// of its ancestors, unless the document lies there itself. Empty for no folder.
QString rootFor(const QString& folder);

// The file that path names, with its links followed, when a page whose tree has
// root may show it: a regular file the user can read, inside root, with no hidden
// name between root and itself. Empty otherwise.
QString showableFile(const QString& root, const QString& path);

} // namespace zt::pagefolder
