// The menu items of the two views that open the element dialogs, and the visual
// view's own Highlight.
#include "colours.h"
#include "frmimage.h"
#include "frmrow.h"
#include "heading.h"
#include "highlight.h"
#include "highlightgen.h"
#include "protocol.h"
#include "rollover.h"
#include "rule.h"
#include "table.h"
#include "vistbl.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/guard.h"
#include "platform/services.h"

namespace zt {

void Zelvo::mnuHR() {
    dialogFor<rule>(forms(), caller::kEdit).show();
}

void Zelvo::mnuHeading() {
    heading& dialog = dialogFor<heading>(forms(), caller::kEdit);
    dialog.ui.txtHeading.setText(ui.area.selText());
    dialog.show();
}

void Zelvo::mnuHighlight() {
    highlight& dialog = dialogFor<highlight>(forms(), caller::kEdit);
    dialog.ui.txthighlight.setText(ui.area.selText());
    dialog.show();
}

void Zelvo::mnuinstable() {
    dialogFor<table>(forms(), caller::kEdit).show();
}

// The row dialog has no caller: its rows always go to the source text.
void Zelvo::mnuinsrowcol() {
    forms().get<frmrow>().show();
}

void Zelvo::mnuVisTbl() {
    dialogFor<visTbl>(forms(), caller::kEdit).show();
}

void Zelvo::mnuImage() {
    dialogFor<frmImage>(forms(), caller::kEdit).show();
}

// The rollover dialog has no caller: it always rewrites the source text.
void Zelvo::mnuRollImage() {
    forms().get<rollover>().show();
}

void Tessara::mnuInsTable() {
    dialogFor<table>(forms(), caller::kComp).show();
}

void Tessara::mnuVisTbl() {
    dialogFor<visTbl>(forms(), caller::kComp).show();
}

void Tessara::mnuRule() {
    dialogFor<rule>(forms(), caller::kComp).show();
}

void Tessara::mnuHeading() {
    dialogFor<heading>(forms(), caller::kComp).show();
}

// The page's selection, as plain text, on a picked colour. The dialog is only told
// its caller, never shown. Picking black or cancelling on the first use does
// nothing; a failure (the picker's Cancel once an earlier command set CancelError,
// nothing selected to copy) ends the command silently.
void Tessara::mnuHighlight() {
    orEndSilently([this] {
        ui.ComDlg.showColor();
        const quint32 c = ui.ComDlg.color;
        if (c == 0)
            return;
        const QString colour = hexColour(c);
        dialogFor<highlight>(forms(), caller::kComp);
        ui.txtComp->execCommand(DECMD_COPY);
        const QString text = services().clipboard->text();
        VisualInsert(visualHighlightSpan({.colour = colour, .text = text}));
    });
}

} // namespace zt
