#include "linebreaks.h"

#include <algorithm>

namespace zt::linebreaks {

namespace {

constexpr char16_t kCr = u'\r';
constexpr char16_t kLf = u'\n';

bool isBreak(QChar c) {
    return c == kLf || c == kCr || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
}

bool at(QStringView text, qsizetype index, char16_t c) {
    return index >= 0 && index < text.size() && text[index] == c;
}

} // namespace

QString toDocument(QStringView modelText) {
    QString text = modelText.toString();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QChar(kCr), QChar(kLf));
    return text;
}

QString toModel(QStringView plainText) {
    QString text;
    text.reserve(plainText.size() + plainText.size() / 16);
    for (qsizetype i = 0; i < plainText.size(); ++i) {
        const QChar c = plainText[i];
        if (!isBreak(c)) {
            text.append(c);
            continue;
        }
        if (c == kCr && at(plainText, i + 1, kLf))
            ++i;
        text.append(QStringLiteral("\r\n"));
    }
    return text;
}

namespace {

bool pairAt(QStringView text, qsizetype index) {
    return at(text, index, kCr) && at(text, index + 1, kLf);
}

int pairsIn(QStringView text) {
    return int(text.count(u"\r\n"));
}

} // namespace

void PositionMap::cut(QStringView modelText, qsizetype from, qsizetype to,
                      std::vector<Piece>& out) const {
    while (from < to) {
        qsizetype end = std::min(from + m_pieceLength, to);
        if (pairAt(modelText, end - 1) && end < to)
            ++end;
        out.push_back({int(end - from), pairsIn(modelText.sliced(from, end - from))});
        from = end;
    }
}

void PositionMap::reset(QStringView modelText) {
    m_pieces.clear();
    cut(modelText, 0, modelText.size(), m_pieces);
}

void PositionMap::replaced(QStringView modelText, int start, int removed, int inserted) {
    if (m_pieces.empty()) {
        reset(modelText);
        return;
    }
    // The pieces that held the replaced text, [first, last], from from to to of the old
    // text; an insertion at the very end goes to the last piece.
    std::size_t first = 0;
    qsizetype from = 0;
    while (first + 1 < m_pieces.size() && from + m_pieces[first].length <= start)
        from += m_pieces[first++].length;
    std::size_t last = first;
    qsizetype to = from + m_pieces[first].length;
    while (last + 1 < m_pieces.size() && to < start + removed)
        to += m_pieces[++last].length;
    to += inserted - removed;

    // What is left of them is read again with a neighbour when it has become small,
    // so that the pieces stay few; and with the neighbour whose break now forms a pair
    // with a character across the cut.
    if (to - from < m_pieceLength / 4) {
        if (last + 1 < m_pieces.size())
            to += m_pieces[++last].length;
        else if (first > 0)
            from -= m_pieces[--first].length;
    }
    while (first > 0 && pairAt(modelText, from - 1))
        from -= m_pieces[--first].length;
    while (last + 1 < m_pieces.size() && pairAt(modelText, to - 1))
        to += m_pieces[++last].length;

    std::vector<Piece> pieces;
    cut(modelText, from, to, pieces);
    const auto begin = m_pieces.begin() + std::ptrdiff_t(first);
    m_pieces.erase(begin, begin + std::ptrdiff_t(last - first + 1));
    m_pieces.insert(m_pieces.begin() + std::ptrdiff_t(first), pieces.begin(), pieces.end());
}

int PositionMap::toDocumentPosition(QStringView modelText, int modelPosition) const {
    const qsizetype position = std::clamp<qsizetype>(modelPosition, 0, modelText.size());
    qsizetype model = 0;
    qsizetype document = 0;
    for (const Piece& piece : m_pieces) {
        if (model + piece.length > position)
            break;
        model += piece.length;
        document += piece.length - piece.pairs;
    }
    const qsizetype rest = position - model;
    return int(document + rest - pairsIn(modelText.sliced(model, rest)));
}

int PositionMap::toModelPosition(QStringView modelText, int documentPosition) const {
    const qsizetype position = std::max(documentPosition, 0);
    qsizetype model = 0;
    qsizetype document = 0;
    for (const Piece& piece : m_pieces) {
        if (document + piece.length - piece.pairs > position)
            break;
        model += piece.length;
        document += piece.length - piece.pairs;
    }
    for (; document < position && model < modelText.size(); ++document)
        model += pairAt(modelText, model) ? 2 : 1;
    return int(model);
}

Replacement difference(QStringView before, QStringView after) {
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype prefix =
        std::mismatch(before.begin(), before.begin() + shorter, after.begin()).first -
        before.begin();
    if (at(before, prefix - 1, kCr) && (at(before, prefix, kLf) || at(after, prefix, kLf)))
        --prefix;

    const qsizetype maxSuffix = shorter - prefix;
    qsizetype suffix =
        std::mismatch(before.rbegin(), before.rbegin() + maxSuffix, after.rbegin()).first -
        before.rbegin();
    const qsizetype beforeTail = before.size() - suffix;
    const qsizetype afterTail = after.size() - suffix;
    if (suffix > 0 && at(before, beforeTail, kLf) &&
        (at(before, beforeTail - 1, kCr) || at(after, afterTail - 1, kCr)))
        --suffix;

    Replacement replacement;
    replacement.start = int(prefix);
    replacement.removed = int(before.size() - suffix - prefix);
    replacement.inserted = after.mid(prefix, after.size() - suffix - prefix).toString();
    return replacement;
}

} // namespace zt::linebreaks
