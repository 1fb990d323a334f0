#pragma once

#include "support/failureof.h"
#include "support/markedtext.h"

#include "platform/textcontrol.h"

#include <QString>

#include <ostream>

// Texts in failure messages as text, not as arrays of characters.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace zt::test {

// A bare text box with a selection, counting the Change events after it was set up.
struct Area {
    Area(const QString& text, int start, int length) {
        control.setText(text);
        control.setSelStart(start);
        control.setSelLength(length);
        control.addChangeHandler([this] { ++changes; });
    }
    explicit Area(const QString& marked) {
        put(control, marked);
        control.addChangeHandler([this] { ++changes; });
    }

    TextControl control;
    int changes = 0;
};

} // namespace zt::test
