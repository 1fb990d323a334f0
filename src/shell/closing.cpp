#include "closing.h"

#include "frmsplash.h"
#include "startup.h"

#include "builders/heading.h"
#include "builders/highlight.h"
#include "builders/rule.h"
#include "builders/table.h"
#include "pagehelpers/jsconsole.h"

#include "platform/formregistry.h"

namespace zt {

namespace {

template <class... Forms> void unloadInOrder(FormRegistry& forms) {
    (forms.unload<Forms>(), ...);
}

} // namespace

void unloadDialogs(FormRegistry& forms) {
    // bookmarks, bullets, CursorArrow, FindMe, formButton, formFieldset, formFile,
    // formHidden, formList, formRadChk, forms, formTextArea, formTextbox, frmFont,
    // frmImage, frmrow, frmSplash, heading, highlight, hyperlinks, insHTML,
    // JSConsole, JSMacros, ListURLs, loading, mail, marquee, MetaGen, pageProps,
    // rollover, rule, styleText, StartUp, table, target, TheBrowser, visTbl:
    // each joins this list, in this order, when it is built.
    unloadInOrder<frmSplash, heading, highlight, JSConsole, rule, StartUp, table>(forms);
}

} // namespace zt
