#pragma once

namespace zt {

class Clipboard;
class TextControl;

// The whole text of area selected. The length is 16-bit: a text above 32767 characters
// fails with Overflow, the selection unchanged.
void selectAll(TextControl& area);

// The selection to the clipboard as text; nothing happens with no selection.
void copySelection(TextControl& area, Clipboard& clipboard);
// As copy, then the selection goes.
void cutSelection(TextControl& area, Clipboard& clipboard);
// The clipboard's text in place of the selection, empty or not.
void pasteClipboard(TextControl& area, const Clipboard& clipboard);

} // namespace zt
