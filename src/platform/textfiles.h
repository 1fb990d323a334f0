#pragma once

#include <QString>
#include <QStringList>

// Text files as the program reads and writes them: whole, inside one command.
// Text is kept in the desktop's encoding, UTF-8; a page in plain ASCII reads back
// exactly as it was written.
namespace zt::textfiles {

// The whole file. A missing file fails with 53, an unreadable one with 75.
QString readAll(const QString& path);

// The lines of the file, without their breaks (CR LF, LF or CR); a last line
// without a break is still a line.
QStringList readLines(const QString& path);

// Creates or replaces the file with text. An empty or unusable path fails with
// 52 (bad file name) or 76 (path not found), a refused write with 75.
void write(const QString& path, const QString& text);

} // namespace zt::textfiles
