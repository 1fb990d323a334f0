#pragma once

#include <QString>

#include <functional>

namespace zt {
struct Services;
}

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

// Whether path may be opened as a document. A file that holds no text (an image,
// a program) or is far larger than any page is refused with a box that says so, before anything of
// the open document changes; a file that cannot be read is left to the command's own failure path.
bool acceptsFile(Services& services, const QString& path);

// "File not saved. Would you like to save your file first?": true for Yes.
bool askSaveFirst(Services& services);

// Exit from either view: one question, with no word of unsaved work. On No the
// view's editor gets the focus back. On Yes the view's crash file is deleted (none
// when crashFile is empty) and, if that worked, the crash setting is written; then
// the process ends at once.
void exitProgram(Services& services, const std::function<void()>& focusEditor,
                 const QString& crashFile);

} // namespace zt::document
