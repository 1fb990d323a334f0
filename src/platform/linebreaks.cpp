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

int toDocumentPosition(QStringView modelText, int modelPosition) {
    const qsizetype position = std::clamp<qsizetype>(modelPosition, 0, modelText.size());
    return int(position - modelText.left(position).count(u"\r\n"));
}

int toModelPosition(QStringView modelText, int documentPosition) {
    const qsizetype position = std::max(documentPosition, 0);
    qsizetype pairs = 0;
    qsizetype pair = modelText.indexOf(u"\r\n");
    while (pair >= 0 && pair - pairs < position) {
        ++pairs;
        pair = modelText.indexOf(u"\r\n", pair + 2);
    }
    return int(std::min(position + pairs, modelText.size()));
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
