#pragma once

#include <QDateTime>
#include <QString>

namespace zt {
class FormRegistry;
}

// The last save of the open document when the program ends without the user's
// Exit: a failure that reaches the guard, or the desktop ending the session. The
// file goes into the crash folder, where the Crash Recovery Wizard lists it.
namespace zt::finalsave {

// Whether the open document has changes the user has not saved.
bool unsavedWork(FormRegistry& forms);

// Writes "{crash folder}/{document name or Untitled} {yyyy-MM-dd HH-mm-ss}.crw" as
// the crash timer writes: with the visual view in front the page engine's text,
// waited for two seconds at most; otherwise, or when the engine does not answer,
// the source text and a line break. In the document's encoding. Returns the path
// written, or an empty text when there was nothing to write or no place for it.
// Never throws and never loads a form.
QString writeOpenDocument(FormRegistry& forms,
                          const QDateTime& when = QDateTime::currentDateTime());

} // namespace zt::finalsave
