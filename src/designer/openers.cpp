// The views' way into the form designer: each tells the generation's last step
// where the form is to go, then shows the designer.
#include "morvane.h"
#include "prewizard.h"

#include "builders/protocol.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/formregistry.h"

namespace zt {

void Zelvo::mnuMorvane() {
    forms().get<prewizard>().ui.txtCompOrEdit.setText(caller::kEdit);
    forms().get<morvane>().show();
}

void Tessara::mnuMorvane() {
    forms().get<prewizard>().ui.txtCompOrEdit.setText(caller::kComp);
    forms().get<morvane>().show();
}

} // namespace zt
