#pragma once

namespace zt {

class TextControl;

// Tags that go round the selection of area with no test of what is there already:
// each use adds another pair. The caret ends behind the closing tag, nothing selected;
// with no selection the empty pair goes in at the caret.
enum class Surround { AlignLeft, Center, AlignRight, Justify, NoBreak };
void surroundSelection(TextControl& area, Surround which);

// Tags that replace the selection.
enum class Insertion { LineBreak, WordBreak };
void insertTag(TextControl& area, Insertion which);

// An empty left-aligned paragraph in place of the selection, with the caret inside it,
// in front of the two line breaks, ready for typing.
void insertParagraph(TextControl& area);

} // namespace zt
