#pragma once

#include <QString>

namespace zt {

class CommonDialog;
class PageEngine;

// The small design documents of the form designer and the Layout Manager: the body
// of a work area as one written line, in the desktop's old code page
// (Windows-1252). No name is ever kept: every Save asks again, and nothing marks a
// change.

// The text and the CR LF that ends a written line.
void writeDesignFile(const QString& path, const QString& text);

// Save: the body is cut before the dialog, unprotected, so a page too long for it
// fails there. The dialog asks nothing about an existing file, which is replaced;
// any failure after it ends the command silently.
void saveDesign(PageEngine& work, CommonDialog& dialog, const QString& filter);

// Open: the file's length is held in 16 bits, so a file above 32767 bytes fails
// before anything is read. That failure, like any after the dialog, ends the command
// silently and leaves the work area as it was.
void openDesign(PageEngine& work, CommonDialog& dialog, const QString& filter);

} // namespace zt
