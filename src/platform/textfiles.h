#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Text files as the program reads and writes them: whole, inside one command.
//
// A file is read as UTF-8 when it is valid UTF-8 (with or without a byte order
// mark), as UTF-16 when it starts with that mark, else as the charset its <meta>
// declares, else as Windows-1252, the code page old pages were written in. Every
// byte of a file read one way writes back the same way, so an open and a save
// change nothing the user did not edit. A character the file's code page cannot
// hold is written as an HTML numeric character reference (&#8364;), which every
// browser shows as the character.
namespace zt::textfiles {

struct Encoding {
    // "UTF-8", "UTF-16LE", "UTF-16BE", "windows-1252" or another charset by name.
    QByteArray charset = QByteArrayLiteral("UTF-8");
    // The file starts with a byte order mark (always so for UTF-16).
    bool byteOrderMark = false;

    bool operator==(const Encoding&) const = default;
    bool isUtf8() const { return charset == "UTF-8"; }
};

struct TextFile {
    QString text;
    Encoding encoding;
};

// The encoding the bytes of a file are read in, by the rule above.
Encoding detect(const QByteArray& bytes);
QString decode(const QByteArray& bytes, const Encoding& encoding);
QByteArray encode(const QString& text, const Encoding& encoding);

// The whole file and its encoding. A missing file fails with 53, an unreadable one
// (a folder, a file without permission) with 75.
TextFile read(const QString& path);
QString readAll(const QString& path);

// The encoding the program last read the file in during this run; UTF-8 for a file
// it never read.
Encoding encodingOf(const QString& path);

// The lines of the file, without their breaks (CR LF, LF or CR); a last line
// without a break is still a line.
QStringList readLines(const QString& path);

// Creates or replaces the file with text, in the given encoding, or without one in
// the encoding the file was read in. The old file stays whole until the new text is
// safely on disk. An empty or unusable path fails with 52 (bad file name) or 76
// (path not found), a refused or incomplete write (a full disk) with 75.
void write(const QString& path, const QString& text, const Encoding& encoding);
void write(const QString& path, const QString& text);

// Whether the file holds something other than text: a NUL byte near its start,
// outside UTF-16. False for a file that cannot be read.
bool looksBinary(const QString& path);

} // namespace zt::textfiles
