#include "optfunctions.h"

#include "help/frmhelp.h"
#include "platform/formregistry.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/textfiles.h"

namespace zt {

void showHelpPage(FormRegistry& forms, const QString& page) {
    try {
        // Touching the viewer loads it; the window only comes up with a page in it.
        frmHelp& help = forms.get<frmHelp>();
        const QString path = forms.services().folder->path(QStringLiteral("misc/") + page);
        // Pages are plain text, shown as they are written.
        help.ui.txtHelp.setText(textfiles::readAll(path));
        help.show();
    } catch (const RuntimeFailure&) {
    }
}

} // namespace zt
