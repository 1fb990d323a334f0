#pragma once

#include <QString>
#include <QStringList>

// The tag list beside the source text: the catalogue of HTML tags by group that it
// holds when the view opens, how a search finds a line in it, and what a line of it
// writes into the text.
namespace zt::taglist {

// The catalogue as the list shows it at first: each group a heading, one empty line,
// its tags, and two empty lines before the next heading.
QStringList designLines();

// The first line that contains text, case ignored; an empty text matches the first
// line. -1 for no match, and for the box's own prompt "Search Tag".
int findLine(const QStringList& lines, const QString& text);
inline const QString kSearchPrompt = QStringLiteral("Search Tag");

// Whether a line of the list is a tag (the rest are headings and spacing).
bool isTag(const QString& line);
// The tag that closes `tag`: its first character becomes `/` behind a new `<`, so
// `<b>` gives `</b>`; empty for the tags that stand alone.
QString closingTag(const QString& tag);

// Whether a line of a reference library goes into the text: it starts with a
// lower-case letter or with `:`. Headings start with a capital; a digit or a sign
// has no case and goes nowhere either.
bool isReferenceLine(const QString& line);

} // namespace zt::taglist
