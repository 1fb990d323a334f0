#pragma once

#include <QString>
#include <QtGlobal>

namespace zt {

class TextControl;

// Smart Select: selects from the nearest "<" before the caret to the first ">" from
// the character before the caret. The two searches know nothing of each other, so
// with the caret in plain text the selection runs over the text from the tag before
// to the tag behind. A caret at the very start does nothing. A failure ends the
// command where it happened: with no "<" before, nothing has changed; with no ">"
// behind, the caret has already moved.
void smartSelect(TextControl& area);

// What the end-tag search did.
enum class EndTag { Selected, Deleted, NotFound };

// Find End Tag (deleteTags false) and Auto Delete (deleteTags true), from the
// selection Smart Select left. The tag's name runs from behind its "<" to the first
// blank or ">"; the first closing tag of that name from the tag on, in any case, is
// selected, or with deleteTags removed together with the opening tag up to its first
// ">". Nesting is not considered. Positions are 16-bit, so a tag beyond 32767 fails
// with Overflow; any other failure of the search or the selection comes out as it is.
EndTag searchEndTag(TextControl& area, bool deleteTags);

// The 0-based position of the first match of what in text from the 1-based position
// from, held in 16 bits as the searches always held it: -1 when there is none, and 0,
// which the callers also count as none, for a match at the first character. With
// matchCase false both are lower-cased first. A match beyond 32767 fails with
// Overflow.
qint16 findFrom(const QString& text, const QString& what, int from, bool matchCase);

} // namespace zt
