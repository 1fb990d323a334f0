// The menu items of the two views that open the list and form dialogs. The visual
// view's own Bullets and Numbering are commands of the page.
#include "bullets.h"
#include "formform.h"
#include "formlist.h"
#include "listurls.h"
#include "protocol.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include <QListWidget>
#include <QRadioButton>

namespace zt {

namespace {

// The option turned on sets what else can be chosen; the opener still names the
// two shape lists and picks the first shape of the kind.
void openBullets(FormRegistry& forms, bool numbering) {
    bullets& dialog = dialogFor<bullets>(forms, caller::kEdit);
    (numbering ? dialog.ui.radNum : dialog.ui.radBul)->setChecked(true);
    dialog.ui.listTypeNum->setEnabled(numbering);
    dialog.ui.listTypeBul->setEnabled(!numbering);
    (numbering ? dialog.ui.listTypeNum : dialog.ui.listTypeBul)->setCurrentRow(0);
    dialog.show();
}

} // namespace

void Zelvo::mnuBullets() {
    openBullets(forms(), false);
}

void Zelvo::mnuNumbering() {
    openBullets(forms(), true);
}

void Zelvo::mnuiForm() {
    dialogFor<formForm>(forms(), caller::kEdit).show();
}

void Zelvo::mnuDropDown() {
    dialogFor<formList>(forms(), caller::kEdit).show();
}

void Zelvo::mnuListLinks() {
    dialogFor<ListURLs>(forms(), caller::kEdit).show();
}

void Tessara::mnuInsForm() {
    dialogFor<formForm>(forms(), caller::kComp).show();
}

void Tessara::mnuList() {
    dialogFor<formList>(forms(), caller::kComp).show();
}

// No caller is written: an empty one sends the list to the page, while a dialog
// still open from the source view keeps sending it there.
void Tessara::mnuListLinks() {
    forms().get<ListURLs>().show();
}

} // namespace zt
