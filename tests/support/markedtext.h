#pragma once

#include "platform/textcontrol.h"

#include <QRegularExpression>
#include <QString>

namespace zt::test {

// A text with "|" for the caret, or "[" and "]" round the selection, put in a box.
inline void put(TextControl& box, QString text) {
    const int open = int(text.indexOf(QRegularExpression("[|[]")));
    text.remove(open, 1);
    const int close = int(text.indexOf(']'));
    box.setText(close < 0 ? text : text.remove(close, 1));
    box.setSelStart(open);
    box.setSelLength(close < 0 ? 0 : close - open);
}

// The box's text and selection written the way put() reads them.
inline QString shown(const TextControl& box) {
    QString text = box.text();
    const int start = box.selStart(), end = start + box.selLength();
    return end == start ? text.insert(start, '|') : text.insert(end, ']').insert(start, '[');
}

} // namespace zt::test
