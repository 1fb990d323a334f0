// The views' way into the Navigation Bar Creator: the caller is written into the
// second step, which delivers, and the first step is shown.
#include "navlisturls.h"
#include "navmaker.h"

#include "builders/protocol.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

namespace zt {

void Zelvo::mnuNavigator() {
    dialogFor<NavListURLs>(forms(), caller::kEdit);
    forms().get<NavMaker>().show();
}

void Tessara::mnuNavigator() {
    dialogFor<NavListURLs>(forms(), caller::kComp);
    forms().get<NavMaker>().show();
}

} // namespace zt
