#pragma once

namespace zt {

class TextControl;

// A tab at the start of every line of the selection of area; the result stays selected,
// so the command can be repeated. With no selection one tab goes in and is selected.
void tabify(TextControl& area);

// Every tab of the selection goes, wherever it stands; the result stays selected.
void untabify(TextControl& area);

} // namespace zt
