// The menu items that open the link dialogs, and the visual view's Hyperlink.
#include "bookmarks.h"
#include "hyperlinks.h"
#include "mail.h"
#include "protocol.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/guard.h"
#include "platform/services.h"

namespace zt {

void Zelvo::mnuHyperlink() {
    hyperlinks& dialog = dialogFor<hyperlinks>(forms(), caller::kEdit);
    bookmarkScan(forms(), dialog.ui.listBookMarks);
    dialog.ui.txtTextToDisp.setText(ui.area.selText());
    dialog.show();
}

void Zelvo::mnuLinkMail() {
    mail& dialog = forms().get<mail>();
    dialog.ui.txtTextToDisp.setText(ui.area.selText());
    dialog.show();
}

void Zelvo::mnuBookmarks() {
    bookmarks& dialog = dialogFor<bookmarks>(forms(), caller::kEdit);
    bookmarkScan(forms(), dialog.ui.listBookMarks);
    dialog.show();
}

// The page's selection, as plain text through the clipboard, becomes the link's
// text. With nothing copied the page's own link dialog opens instead. So with an
// empty selection, text left on the clipboard from earlier becomes the link text;
// either way the clipboard is emptied at the end. A failure ends the command
// silently, before that.
void Tessara::mnuLink() {
    orEndSilently([this] {
        hyperlinks& dialog = dialogFor<hyperlinks>(forms(), caller::kComp);
        ui.txtComp->execCommand(DECMD_COPY);
        Clipboard& clipboard = *services().clipboard;
        const QString text = clipboard.text();
        if (!text.isEmpty()) {
            dialog.ui.txtTextToDisp.setText(text);
            dialog.show();
        } else {
            ui.txtComp->execCommand(DECMD_HYPERLINK);
        }
        clipboard.clear();
    });
}

} // namespace zt
