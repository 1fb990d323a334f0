#include "editcommands.h"

#include "platform/desktop.h"
#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

namespace zt {

void selectAll(TextControl& area) {
    const qint16 length = vb::toInteger(area.text().size());
    area.setSelStart(0);
    // Moving the start has emptied the selection, so this is the text's length.
    area.setSelLength(area.selLength() + length);
}

void copySelection(TextControl& area, Clipboard& clipboard) {
    if (area.selLength() >= 1)
        clipboard.setText(area.selText());
}

void cutSelection(TextControl& area, Clipboard& clipboard) {
    copySelection(area, clipboard);
    // Not under the test of copy: with nothing selected the empty assignment still
    // runs, and with it the Change chain.
    area.setSelText(QString());
}

void pasteClipboard(TextControl& area, const Clipboard& clipboard) {
    area.setSelText(clipboard.text());
}

} // namespace zt
