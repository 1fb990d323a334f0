#pragma once

#include <QString>

// The fixed texts of the open document that both views share.
namespace zt::document {

// The application name every setting of the program is kept under.
inline const QString kApp = QStringLiteral("Zelvo Tessara 3.0");
inline const QString kAssistant = QStringLiteral("Assistant: Zelvo");
inline const QString kFilter = QStringLiteral("HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm");

// The text of a new page in the source view, nine lines joined by CR LF.
QString blankPage();

// "Zelvo Tessara: By Orvek - ({star}) {path}"
QString caption(const QString& star, const QString& path);

// The temporary crash file the source view's Exit deletes. The program names it
// on the system drive; here it is the system's temporary folder.
QString tempCrashFile();

} // namespace zt::document
