// The Layout Manager's ways in from the two views, its files, and its ways out: the
// box maker, the layout as text, the help, and the layout handed to the document.
#include "lboxprops.h"
#include "ledithtml.h"
#include "lhelp.h"
#include "lmanager.h"

#include "builders/protocol.h"
#include "designer/bodyof.h"
#include "designer/designfile.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/prompts.h"
#include "platform/services.h"

namespace zt {

namespace {

const QString kFilter = QStringLiteral("Layout Manager Files (*.lyt)|*.lyt");

} // namespace

void Zelvo::mnuLayoutManager() {
    forms().get<LManager>().ui.txtCompOrEdit.setText(caller::kEdit);
    forms().get<LManager>().show();
}

void Tessara::mnuLayoutManager() {
    forms().get<LManager>().ui.txtCompOrEdit.setText(caller::kComp);
    forms().get<LManager>().show();
}

void LManager::btnAddNew_Click() {
    forms().get<LBoxProps>().show();
}

void LManager::btnSaveLayout_Click() {
    saveDesign(*ui.result, ui.ComDlg, kFilter);
}

void LManager::btnLoadLayout_Click() {
    openDesign(*ui.result, ui.ComDlg, kFilter);
}

void LManager::btnEditHTML_Click() {
    const QString body = BodyOf(ui.result->documentHTML());
    hide();
    LEditHTML& source = forms().get<LEditHTML>();
    source.ui.txtCode.setText(body);
    source.show();
}

void LManager::btnHelp_Click() {
    forms().get<LHelp>().show();
}

// The visual view's page is replaced on Yes and takes the layout at the caret on No.
// The source view takes it at the caret either way: there Yes replaces nothing,
// whatever the question says.
void LManager::btnUseLayout_Click() {
    const QString layout = BodyOf(ui.result->documentHTML());
    const int answer = services().prompts->msgBox(
        QStringLiteral("Would you like to replace existing page with new layout?\r\n\r\n"
                       "Yes to replace\r\nNo to insert in existing page\r\nCancel to go back"),
        vbYesNoCancel | vbQuestion, QStringLiteral("Layout Manager"));
    if (answer == vbCancel)
        return;
    if (ui.txtCompOrEdit.text() != caller::kComp)
        forms().get<Zelvo>().ui.area.setSelText(layout);
    else if (answer == vbYes)
        forms().get<Tessara>().ui.txtComp->setDocumentHTML(layout);
    else
        forms().get<Tessara>().VisualInsert(layout);
    unload();
}

} // namespace zt
