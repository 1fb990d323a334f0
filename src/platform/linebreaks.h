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

// Where the CR LF pairs of a text box's text lie, kept up to date edit by edit, so that
// a position maps at the same small cost anywhere in a text of any size: the text is
// cut into pieces of a few thousand characters that never split a pair, each knowing
// how many pairs it holds, and only the piece that holds the position is read. Every
// call takes the text as it is now.
class PositionMap {
public:
    // Long enough that a text of many megabytes has only a few thousand pieces to step
    // over, short enough that reading one piece costs next to nothing.
    static constexpr int kPieceLength = 4096;

    explicit PositionMap(int pieceLength = kPieceLength) : m_pieceLength(pieceLength) {}

    // Starts over on a whole text.
    void reset(QStringView modelText);
    // The text became modelText by `removed` characters at start giving way to
    // `inserted` new ones.
    void replaced(QStringView modelText, int start, int removed, int inserted);

    // The document position of a model position. A position between the CR and the LF
    // of a pair lands behind the break. Only the text before the position is read, so
    // a position in front of an edit maps before replaced() has learnt of the edit.
    int toDocumentPosition(QStringView modelText, int modelPosition) const;
    // The model position of a document position; a break is never split.
    int toModelPosition(QStringView modelText, int documentPosition) const;

private:
    struct Piece {
        int length = 0; // model characters
        int pairs = 0;
    };
    // Cuts modelText[from, to) into pieces, in order, into out.
    void cut(QStringView modelText, qsizetype from, qsizetype to, std::vector<Piece>& out) const;

    int m_pieceLength;
    std::vector<Piece> m_pieces;
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
