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

// The start of the line that holds position, looking back no further than bound.
int lineStart(QStringView text, int position, int bound) {
    while (position > bound && !isBreak(text[position - 1]))
        --position;
    return position;
}

// The end of the line that holds position (where its break stands), looking no further
// than bound.
int lineEnd(QStringView text, int position, int bound) {
    while (position < bound && !isBreak(text[position]))
        ++position;
    return position;
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
    m_cuts.clear();
    const int length = int(modelText.size());
    const std::vector<int> none;
    for (int from = 0; from <= length;) {
        const int to = lineEnd(modelText, from, length);
        if (to - from > m_longestLine)
            cutLine(modelText, from, to, none, m_cuts);
        from = to + 1;
    }
}

QString PositionMap::documentText(QStringView modelText) const {
    return shown(modelText, 0, int(modelText.size()), m_cuts);
}

void PositionMap::followPieces(QStringView modelText, int start, int removed, int inserted) {
    if (m_pieces.empty()) {
        m_pieces.clear();
        cut(modelText, 0, modelText.size(), m_pieces);
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

void PositionMap::cutLine(QStringView modelText, int from, int to, const std::vector<int>& kept,
                          std::vector<int>& out) const {
    const int shortest = std::max(m_longestLine / 8, 1);
    // A stretch shorter than the shortest joins the one behind it, the last the one
    // in front; a line shorter than that is never cut.
    std::vector<int> joined;
    int stretch = from;
    for (const int at : kept) {
        if (at - stretch < shortest)
            continue;
        joined.push_back(at);
        stretch = at;
    }
    if (!joined.empty() && to - stretch < shortest)
        joined.pop_back();
    joined.push_back(to);
    // A stretch longer than the longest is cut into lines of just the longest, the last
    // two sharing what is left when it would be short. Lines of the longest width are
    // then the widest the editor shows, and a line typed into is cut again before it
    // grows wider than they are: the editor measures all of its lines again whenever
    // its widest line becomes narrower, which costs milliseconds in a page of a
    // hundred thousand lines.
    stretch = from;
    for (const int end : joined) {
        while (end - stretch > m_longestLine) {
            int at = stretch + m_longestLine;
            if (end - at < m_longestLine / 2)
                at = stretch + (end - stretch) / 2;
            if (modelText[at - 1].isHighSurrogate() && modelText[at].isLowSurrogate())
                --at;
            out.push_back(at);
            stretch = at;
        }
        if (end != to)
            out.push_back(end);
        stretch = end;
    }
}

QString PositionMap::shown(QStringView modelText, int from, int to,
                           const std::vector<int>& cuts) const {
    QString text;
    text.reserve(to - from + qsizetype(cuts.size()));
    int stretch = from;
    for (auto at = std::upper_bound(cuts.begin(), cuts.end(), from); at != cuts.end() && *at < to;
         ++at) {
        text += toDocument(modelText.sliced(stretch, *at - stretch));
        text += QChar(kLf);
        stretch = *at;
    }
    text += toDocument(modelText.sliced(stretch, to - stretch));
    return text;
}

DocumentEdit PositionMap::replaced(QStringView modelText, int start, QStringView removedText,
                                   int inserted) {
    const int removed = int(removedText.size());
    const int delta = inserted - removed;
    const int length = int(modelText.size());
    followPieces(modelText, start, removed, inserted);

    // The stretch to cut again, [from, to) of the new text: from the cut or line start
    // before the edit to the cut or line end behind it. A cut at either end of the edit
    // is inside it, as both stretches it parts have changed.
    const auto cuts = m_cuts.begin();
    auto before = std::lower_bound(m_cuts.begin(), m_cuts.end(), start);
    auto behind = std::upper_bound(before, m_cuts.end(), start + removed);
    int from = lineStart(modelText, start, before == cuts ? 0 : *(before - 1));
    int to =
        lineEnd(modelText, start + inserted, behind == m_cuts.end() ? length : *behind + delta);
    // A stretch too short to stand alone between cuts takes its neighbour in.
    const int shortest = std::max(m_longestLine / 8, 1);
    for (bool grown = true; grown;) {
        grown = false;
        if (before != cuts && from == *(before - 1) &&
            lineEnd(modelText, from, std::min(from + shortest, to)) - from < shortest) {
            --before;
            from = lineStart(modelText, from, before == cuts ? 0 : *(before - 1));
            grown = true;
        }
        if (behind != m_cuts.end() && to == *behind + delta &&
            to - lineStart(modelText, to, std::max(to - shortest, from)) < shortest) {
            ++behind;
            to = lineEnd(modelText, to, behind == m_cuts.end() ? length : *behind + delta);
            grown = true;
        }
    }

    // The old cuts inside the stretch, where they are valid in the new text, are kept
    // unless a stretch between them must change.
    const auto valid = [&](int at) {
        return at > from && at < to && !isBreak(modelText[at - 1]) && !isBreak(modelText[at]) &&
               !(modelText[at - 1].isHighSurrogate() && modelText[at].isLowSurrogate());
    };
    std::vector<int> oldCuts(before, behind);
    std::erase_if(oldCuts, [&](int at) { return at <= from; });
    std::vector<int> kept;
    for (const int at : oldCuts) {
        if (at > start && at < start + removed)
            continue;
        const int now = at <= start ? at : at + delta;
        if (valid(now) && (kept.empty() || kept.back() < now))
            kept.push_back(now);
    }
    std::vector<int> fresh;
    for (int line = from;;) {
        const int end = lineEnd(modelText, line, to);
        std::vector<int> inLine;
        for (const int at : kept) {
            if (at > line && at < end)
                inLine.push_back(at);
        }
        cutLine(modelText, line, end, inLine, fresh);
        if (end >= to)
            break;
        line = end + 1;
    }

    // The old document of the stretch and the new, so that the document changes only
    // where they differ.
    QString oldText = modelText.sliced(from, start - from).toString();
    oldText += removedText;
    oldText += modelText.sliced(start + inserted, to - start - inserted);
    for (int& at : oldCuts)
        at -= from;
    const QString oldShown = shown(oldText, 0, int(oldText.size()), oldCuts);
    const QString newShown = shown(modelText, from, to, fresh);

    std::vector<int> all(cuts, before);
    all.insert(all.end(), fresh.begin(), fresh.end());
    for (auto at = behind; at != m_cuts.end(); ++at)
        all.push_back(*at + delta);
    m_cuts = std::move(all);

    const qsizetype shorter = std::min(oldShown.size(), newShown.size());
    const qsizetype prefix =
        std::mismatch(oldShown.begin(), oldShown.begin() + shorter, newShown.begin()).first -
        oldShown.begin();
    const qsizetype suffix =
        std::mismatch(oldShown.rbegin(), oldShown.rbegin() + shorter - prefix, newShown.rbegin())
            .first -
        oldShown.rbegin();
    DocumentEdit edit;
    edit.start = int(toDocumentPosition(modelText, from) + prefix);
    edit.removed = int(oldShown.size() - prefix - suffix);
    edit.inserted = newShown.mid(prefix, newShown.size() - prefix - suffix);
    return edit;
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
    const auto cuts = std::upper_bound(m_cuts.begin(), m_cuts.end(), position) - m_cuts.begin();
    return int(document + rest - pairsIn(modelText.sliced(model, rest)) + cuts);
}

int PositionMap::toModelPosition(QStringView modelText, int documentPosition) const {
    const qsizetype position = std::max(documentPosition, 0);
    qsizetype model = 0;
    qsizetype document = 0;
    std::size_t cut = 0; // the first display break at or behind model
    for (const Piece& piece : m_pieces) {
        std::size_t next = cut;
        while (next < m_cuts.size() && m_cuts[next] < model + piece.length)
            ++next;
        const qsizetype shown = piece.length - piece.pairs + qsizetype(next - cut);
        if (document + shown > position)
            break;
        model += piece.length;
        document += shown;
        cut = next;
    }
    while (document < position && model < modelText.size()) {
        if (cut < m_cuts.size() && m_cuts[cut] == model)
            ++cut; // the display break in front of the character at model
        else
            model += pairAt(modelText, model) ? 2 : 1;
        ++document;
    }
    return int(model);
}

QString PositionMap::withoutDisplayBreaks(QStringView modelText, QStringView documentText) const {
    QString text;
    text.reserve(documentText.size());
    qsizetype from = 0;
    for (const int at : m_cuts) {
        const qsizetype shownAt = toDocumentPosition(modelText, at) - 1;
        text += documentText.sliced(from, shownAt - from);
        from = shownAt + 1;
    }
    text += documentText.sliced(from);
    return text;
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
