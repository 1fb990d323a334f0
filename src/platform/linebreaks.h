#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace zt::linebreaks {

// A text box keeps its text with CR LF line breaks, two characters each; the editor's
// document has one character per break. A lone CR or a lone LF is a break of its own,
// one character on both sides. These translate texts and positions between the two.

// The text as the document shows it: every break becomes "\n".
QString toDocument(QStringView modelText);
// Text typed, pasted or dropped, as the text box keeps it: every break (LF, lone CR,
// or the document's paragraph and line separators) becomes CR LF.
QString toModel(QStringView plainText);

// What the document must do to follow an edit of the text box: the characters at start
// (document positions of the document before it) give way to inserted.
struct DocumentEdit {
    int start = 0;
    int removed = 0;
    QString inserted;
};

// Where the CR LF pairs of a text box's text lie, kept up to date edit by edit, so that
// a position maps at the same small cost anywhere in a text of any size: the text is
// cut into pieces of a few thousand characters that never split a pair, each knowing
// how many pairs it holds, and only the piece that holds the position is read. Every
// call takes the text as it is now.
//
// It also knows where the document cuts a long line for display. The editor lays out a
// whole line again on every edit of it, which for a line of a hundred thousand
// characters (minified script or markup) costs many milliseconds; so a line longer than
// longestLine is shown as several lines of the document, cut by breaks that are in the
// document only. A cut stays where it is while the text around it changes, so an edit
// re-cuts only the stretch it touches: a stretch that grows past longestLine is cut
// again, one that shrinks below an eighth of it joins its neighbour.
class PositionMap {
public:
    // Long enough that a text of many megabytes has only a few thousand pieces to step
    // over, short enough that reading one piece costs next to nothing.
    static constexpr int kPieceLength = 4096;
    // Short enough that laying out one shown line costs a fraction of a millisecond;
    // long enough that a line of ordinary text or markup is never cut.
    static constexpr int kLongestLine = 4096;

    explicit PositionMap(int pieceLength = kPieceLength, int longestLine = kLongestLine)
        : m_pieceLength(pieceLength), m_longestLine(longestLine) {}

    // Starts over on a whole text.
    void reset(QStringView modelText);
    // The document for the whole text: breaks as "\n", long lines cut.
    QString documentText(QStringView modelText) const;
    // The text became modelText by removedText at start giving way to `inserted` new
    // characters; the edit cuts no CR LF pair of the text before or after it. Says how
    // the document shown so far becomes the document of the new text.
    DocumentEdit replaced(QStringView modelText, int start, QStringView removedText, int inserted);

    // The document position of a model position. A position between the CR and the LF
    // of a pair lands behind the break; a position where a long line is cut lands at
    // the start of the next shown line. Only the text before the position is read, so
    // a position in front of an edit maps before replaced() has learnt of the edit.
    int toDocumentPosition(QStringView modelText, int modelPosition) const;
    // The model position of a document position; a break is never split. Both ends of
    // a cut of a long line are the same model position.
    int toModelPosition(QStringView modelText, int documentPosition) const;

    // The model positions, in order, where a long line is cut for display: the
    // document has a break in front of the character at each.
    const std::vector<int>& displayBreaks() const { return m_cuts; }
    // A document text of the whole model text without the breaks of display.
    QString withoutDisplayBreaks(QStringView modelText, QStringView documentText) const;

private:
    struct Piece {
        int length = 0; // model characters
        int pairs = 0;
    };
    // Cuts modelText[from, to) into pieces, in order, into out.
    void cut(QStringView modelText, qsizetype from, qsizetype to, std::vector<Piece>& out) const;
    void followPieces(QStringView modelText, int start, int removed, int inserted);
    // The display breaks of the stretch [from, to) of one line, with the breaks kept in
    // it so far, shortest stretches joined and longest cut.
    void cutLine(QStringView modelText, int from, int to, const std::vector<int>& kept,
                 std::vector<int>& out) const;
    // The document of modelText[from, to) with the given display breaks in it.
    QString shown(QStringView modelText, int from, int to, const std::vector<int>& cuts) const;

    int m_pieceLength;
    int m_longestLine;
    std::vector<Piece> m_pieces;
    std::vector<int> m_cuts;
};

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
