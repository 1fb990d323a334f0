#pragma once

#include "support/failureof.h"

#include <QString>

#include <random>

namespace zt::test {

inline QString q(const char* text) {
    return QString::fromLatin1(text);
}

// Letters and line breaks of every kind, CR LF pairs most often, so that edits keep
// cutting and making pairs.
inline QString randomText(std::mt19937& random, int length) {
    static const char16_t letters[] = u"ab\r\n\r\n\r";
    QString text;
    for (int i = 0; i < length; ++i)
        text += QChar(letters[random() % 7]);
    return text;
}

} // namespace zt::test
