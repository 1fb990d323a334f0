#pragma once

#include <QByteArray>
#include <QString>

// The rich text files of the restore points: a plain text kept in Rich Text Format,
// as the Windows rich text control saved it. Only the text matters; formatting in a
// file read is passed over.
namespace zt::richtext {

// The text as an RTF document in the control's dialect: an \ansicpg1252 header with
// a font table, \par for each CR LF, \tab, \'hh for the code page's other
// characters and \uN for the rest. Any text, lone CR and LF included, reads back
// exactly.
QByteArray write(const QString& text);

// The plain text of an RTF document: \par and \line give CR LF, \tab a tab, \'hh
// a character of the file's code page, \uN a Unicode character (skipping its
// stand-in). Font, colour and style tables, and any group marked \*, are skipped.
// The paragraph mark that ends the document is not part of the text.
QString read(const QByteArray& rtf);

// The control's SaveFile and LoadFile. A folder that is not there fails with 76,
// a missing file with 53, a refused write or read with 75.
void saveFile(const QString& path, const QString& text);
QString loadFile(const QString& path);

} // namespace zt::richtext
