// The views' way into the form designer: each tells the generation's last step
// where the form is to go, then shows the designer. Then the designer's way into its
// field dialogs, which build their field into its strip.
#include "mfields.h"
#include "mformlist.h"
#include "mformtextarea.h"
#include "morvane.h"
#include "prewizard.h"

#include "builders/protocol.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/textcontrol.h"

#include <QRadioButton>

namespace zt {

void Zelvo::mnuMorvane() {
    forms().get<prewizard>().ui.txtCompOrEdit.setText(caller::kEdit);
    forms().get<morvane>().show();
}

void Tessara::mnuMorvane() {
    forms().get<prewizard>().ui.txtCompOrEdit.setText(caller::kComp);
    forms().get<morvane>().show();
}

void morvane::mnuTextBox() {
    forms().get<MformTextbox>().show();
}

void morvane::mnuButton() {
    forms().get<MformButton>().show();
}

void morvane::mnuTextArea() {
    forms().get<MformTextArea>().show();
}

void morvane::mnuRadio() {
    MformRadChk& dialog = forms().get<MformRadChk>();
    dialog.ui.radRadio->setChecked(true);
    dialog.show();
}

void morvane::mnuCheckBox() {
    MformRadChk& dialog = forms().get<MformRadChk>();
    dialog.ui.radCheckbox->setChecked(true);
    dialog.show();
}

// The list box is the drop-down with a size; a size left from an earlier List Box
// stays while the dialog is loaded.
void morvane::mnuList() {
    MformList& dialog = forms().get<MformList>();
    dialog.ui.txtSize.setText(QStringLiteral("5"));
    dialog.show();
}

void morvane::mnuDropDown() {
    forms().get<MformList>().show();
}

void morvane::mnuFieldSet() {
    forms().get<MformFieldset>().show();
}

void morvane::mnuBrowseBox() {
    forms().get<MformFile>().show();
}

void morvane::mnuHidden() {
    forms().get<MformHidden>().show();
}

} // namespace zt
