// The timed save of the open document that the Crash Recovery Wizard switches on.
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/textfiles.h"

namespace zt {

void Tessara::TimeCrashSave_Timer() {
    try {
        // "Crash" here, "crash" where the wizard reads: the program folder matches
        // either to the one folder there is.
        const QString path =
            services().folder->path(QStringLiteral("Crash/") + ui.TimeCrashSave.tag + ".crw");
        if (isVisible())
            ui.txtComp->saveDocument(path);
        else
            textfiles::write(path, forms().get<Zelvo>().ui.area.text() + QStringLiteral("\r\n"),
                             {QByteArrayLiteral("windows-1252")});
    } catch (const RuntimeFailure&) {
        // The saves stop, and nobody is told.
        ui.TimeCrashSave.setEnabled(false);
    }
}

} // namespace zt
