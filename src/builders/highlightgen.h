#pragma once

#include <QString>

namespace zt {

// A text on a coloured background.
struct HighlightValues {
    QString colour{};
    QString text{};
};

// From the highlight dialog: `<span style="background-color: {COLOUR}">{text}</span> `
// with the colour upper-cased and a blank after the colon and after the span. An
// empty colour leaves the style ending in that blank.
QString highlightSpan(const HighlightValues& values);

// From the visual view's own Highlight command, which takes the colour from the
// picker and the text from the page's selection as plain text:
// `<span style="background-color:{colour}">{text}</span> &nbsp;`, no blank after the
// colon and the colour as given.
QString visualHighlightSpan(const HighlightValues& values);

} // namespace zt
