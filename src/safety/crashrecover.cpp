#include "crashrecover.h"

#include "shell/document.h"
#include "shell/modapi.h"
#include "shell/optfunctions.h"
#include "shell/startup.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "visual/bridge.h"

#include "platform/dialogparts.h"
#include "platform/filelistbox.h"
#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QFileInfo>
#include <QPushButton>

namespace zt {

namespace {

Field fileList(FileListBox*& list) {
    return widget("FileCrash", [&list](QWidget* parent) {
        list = new FileListBox("FileCrash", QStringLiteral("*.crw"), parent);
        list->setMinimumHeight(list->fontMetrics().height() * 6);
        return list;
    });
}

} // namespace

crashRecover::crashRecover(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("crashRecover"), QStringLiteral("Crash Recovery Wizard"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {group("fraConfigure"), "Configure document for crash save"},
                       {text("txtDocName", ui.txtDocName, ui.txtDocNameView),
                        "Please enter a name for your document", "", Place::InGroup},
                       {text("txtTimerValue", ui.txtTimerValue, ui.txtTimerValueView),
                        "Please set timer for Auto Save  [1 - 60]", "", Place::InGroup},
                       {button("btnConfigure", ui.btnConfigure), "Configure", "", Place::InGroup},
                       {group("fraDisable"), "Disable Crash Recovery Wizard:"},
                       {button("btnDisableCRW", ui.btnDisableCRW), "Disable", "", Place::InGroup},
                       {group("fraCrashed"), "List of crashed documents"},
                       {fileList(ui.FileCrash), "", "", Place::InGroup},
                       {button("btnLoad", ui.btnLoad), "Load Document", "", Place::InGroup},
                       {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                   });
    onClick(ui.btnConfigure, [this] { btnConfigure_Click(); });
    onClick(ui.btnDisableCRW, [this] { btnDisableCRW_Click(); });
    onClick(ui.btnLoad, [this] { btnLoad_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
    ui.FileCrash->onDblClick = [this] { btnLoad_Click(); };
}

crashRecover::~crashRecover() = default;

void crashRecover::load() {
    try {
        stayOnTop(*this);
        const QString folder = services().folder->path(QStringLiteral("crash"));
        if (!QFileInfo(folder).isDir())
            throw RuntimeFailure::pathNotFound();
        ui.FileCrash->setPath(folder);
    } catch (const RuntimeFailure&) {
        hide();
        services().prompts->msgBox(
            QStringLiteral("Error 04:\r\nUnable to perform requested action. "
                           "Crash folder might have been removed or moved"),
            vbCritical, document::kAssistant);
        unload();
    }
}

void crashRecover::btnConfigure_Click() {
    Timer& timer = forms().get<Tessara>().ui.TimeCrashSave;
    try {
        hide();
        SwitchToVisual(forms());
        // Seconds, whatever the label says: above 65 the timer refuses the interval.
        const QString seconds = ui.txtTimerValue.text();
        const int interval = seconds.isEmpty() ? 10000 : vb::CLng(vb::CDbl(seconds) * 1000);
        if (ui.txtDocName.text().isEmpty()) {
            services().prompts->msgBox(QStringLiteral("Invalid File Name"));
            return;
        }
        timer.tag = ui.txtDocName.text();
        timer.setInterval(interval);
        timer.setEnabled(true);
        unload();
    } catch (const RuntimeFailure&) {
        services().prompts->msgBox(QStringLiteral("Request could not be processed..."), vbCritical,
                                   document::kAssistant);
        unload();
    }
}

void crashRecover::btnDisableCRW_Click() {
    hide();
    forms().get<Tessara>().ui.TimeCrashSave.setEnabled(true);
    services().prompts->msgBox(
        QStringLiteral("Crash Recovery Wizard has been disabled successfully."), vbInformation,
        document::kAssistant);
    unload();
}

void crashRecover::btnLoad_Click() {
    try {
        hide();
        // An OK alone: the question decides nothing.
        services().prompts->msgBox(QStringLiteral("Are you sure you want to load this document?"),
                                   vbCritical, document::kAssistant);
        SwitchToVisual(forms());
        forms().get<Tessara>().ui.txtComp->loadDocument(
            services().folder->path(QStringLiteral("crash")) + QLatin1Char('/') +
            ui.FileCrash->fileName());
        unload();
    } catch (const RuntimeFailure&) {
        services().prompts->msgBox(
            QStringLiteral(
                "Error 05:\r\nAn error occured when trying to perform requested operation"),
            vbCritical, document::kAssistant);
        unload();
    }
}

void crashRecover::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("crashRec.zhp"));
}

void showCrashRecover(FormRegistry& forms) {
    crashRecover& wizard = forms.get<crashRecover>();
    if (forms.isLoaded<crashRecover>())
        wizard.show();
}

void Zelvo::mnuCrashWizard() {
    showCrashRecover(forms());
}

void Tessara::mnuCrashRecover() {
    showCrashRecover(forms());
}

void StartUp::btnCrash_Click() {
    FormRegistry& registry = forms();
    showCrashRecover(registry);
    unload();
}

} // namespace zt
