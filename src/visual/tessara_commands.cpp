// The visual view's editing commands. Nearly all are one command of the page: the
// view looks at neither the selection nor the page, and a command that does not
// apply (Undo with nothing to undo, a table command outside a table) ends its
// handler without a word.
#include "shell/tessara.h"

#include "platform/guard.h"
#include "platform/menutable.h"

#include <QAction>

namespace zt {

void Tessara::execOnPage(DhtmlCommand id) {
    orEndSilently([&] { ui.txtComp->execCommand(id); });
}

void Tessara::mnuBold() {
    execOnPage(DECMD_BOLD);
}
void Tessara::mnuItalics() {
    execOnPage(DECMD_ITALIC);
}
void Tessara::mnuUnderline() {
    execOnPage(DECMD_UNDERLINE);
}
void Tessara::mnuFont() {
    execOnPage(DECMD_FONT);
}
void Tessara::btnFont_Click() {
    execOnPage(DECMD_FONT);
}
void Tessara::mnuImage() {
    execOnPage(DECMD_IMAGE);
}
void Tessara::btnImage_Click() {
    execOnPage(DECMD_IMAGE);
}
void Tessara::mnuBullets() {
    execOnPage(DECMD_UNORDERLIST);
}
void Tessara::mnuNumbering() {
    execOnPage(DECMD_ORDERLIST);
}
void Tessara::mnuIndent() {
    execOnPage(DECMD_INDENT);
}
void Tessara::mnuOutdent() {
    execOnPage(DECMD_OUTDENT);
}
void Tessara::mnuAlignLeft() {
    execOnPage(DECMD_JUSTIFYLEFT);
}
void Tessara::mnuAlignCentre() {
    execOnPage(DECMD_JUSTIFYCENTER);
}
void Tessara::mnuAlignRight() {
    execOnPage(DECMD_JUSTIFYRIGHT);
}
void Tessara::mnuRemFormat() {
    execOnPage(DECMD_REMOVEFORMAT);
}
void Tessara::mnuRemLink() {
    execOnPage(DECMD_UNLINK);
}
void Tessara::mnuCopy() {
    execOnPage(DECMD_COPY);
}
void Tessara::mnuCut() {
    execOnPage(DECMD_CUT);
}
void Tessara::mnuPaste() {
    execOnPage(DECMD_PASTE);
}
void Tessara::mnuDelete() {
    execOnPage(DECMD_DELETE);
}
void Tessara::mnuSelectAll() {
    execOnPage(DECMD_SELECTALL);
}
void Tessara::mnuUndo() {
    execOnPage(DECMD_UNDO);
}
void Tessara::mnuRedo() {
    execOnPage(DECMD_REDO);
}
void Tessara::mnuFind() {
    execOnPage(DECMD_FINDTEXT);
}
void Tessara::mnuBringFront() {
    execOnPage(DECMD_BRING_TO_FRONT);
}
void Tessara::mnuBringForward() {
    execOnPage(DECMD_BRING_FORWARD);
}
void Tessara::mnuBringAbovetext() {
    execOnPage(DECMD_BRING_ABOVE_TEXT);
}
void Tessara::mnuSendBack() {
    execOnPage(DECMD_SEND_TO_BACK);
}
void Tessara::mnuSendBackward() {
    execOnPage(DECMD_SEND_BACKWARD);
}
void Tessara::mnuBelowtext() {
    execOnPage(DECMD_SEND_BELOW_TEXT);
}
void Tessara::mnuInsRow() {
    execOnPage(DECMD_INSERTROW);
}
void Tessara::mnuInsCol() {
    execOnPage(DECMD_INSERTCOL);
}
void Tessara::mnuInsCell() {
    execOnPage(DECMD_INSERTCELL);
}
void Tessara::mnuDelRow() {
    execOnPage(DECMD_DELETEROWS);
}
void Tessara::mnuDelCol() {
    execOnPage(DECMD_DELETECOLS);
}
void Tessara::mnuDelCel() {
    execOnPage(DECMD_DELETECELLS);
}
void Tessara::mnuMerge() {
    execOnPage(DECMD_MERGECELLS);
}
void Tessara::mnuSplit() {
    execOnPage(DECMD_SPLITCELL);
}

// The mark and the page's setting run against each other: the mark starts on with
// snapping off, so the first click turns snapping on and takes the mark away.
void Tessara::mnuSnap() {
    const bool wasChecked = ui.mnuSnap->isChecked();
    setMark(ui.mnuSnap, !wasChecked);
    ui.txtComp->setSnapToGrid(wasChecked);
}

// The caption set here has no access key, unlike the one the menu starts with.
void Tessara::mnuShowDetails() {
    const bool on = !ui.mnuShowDetails->isChecked();
    setMark(ui.mnuShowDetails, on);
    ui.txtComp->setShowDetails(on);
    ui.mnuShowDetails->setText(on ? QStringLiteral("Hide Details")
                                  : QStringLiteral("Show Details"));
}

} // namespace zt
