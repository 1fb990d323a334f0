#pragma once

#include <QString>
#include <QStringView>

namespace zt::linebreaks {

// A text box keeps its text with CR LF line breaks, two characters each; the editor's
// document has one character per break. A lone CR or a lone LF is a break of its own,
// one character on both sides. These translate texts and positions between the two.

// The text as the document shows it: every break becomes "\n".
QString toDocument(QStringView modelText);
// Text typed, pasted or dropped, as the text box keeps it: every break (LF, lone CR,
// or the document's paragraph and line separators) becomes CR LF.
QString toModel(QStringView plainText);

// The document position of a model position. A position between the CR and the LF of
// a pair lands behind the break.
int toDocumentPosition(QStringView modelText, int modelPosition);
// The model position of a document position; a break is never split.
int toModelPosition(QStringView modelText, int documentPosition);

// One replacement in model positions of the text before it.
struct Replacement {
    int start = 0;
    int removed = 0;
    QString inserted;
};

// The smallest replacement that turns before into after without cutting a CR LF pair
// of either text, so that it maps onto whole breaks of the document.
Replacement difference(QStringView before, QStringView after);

} // namespace zt::linebreaks
