// The Templates commands of both views: each view's item runs the one routine.
#include "templates.h"

#include "help/frmmoretemp.h"
#include "shell/document.h"
#include "shell/startup.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/commondialog.h"
#include "platform/formregistry.h"
#include "platform/programfolder.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"

#include <QUrl>

namespace zt {

namespace {

// The operator's support address; the reserved domain stands until one is given.
const QString kSupportMail = QStringLiteral("support@zelvo-tessara.example");

// The name asked for, its blanks taken out: empty after Cancel or for blanks only.
QString templateName(Services& services, const QString& title) {
    QString name = services.prompts->inputBox(QStringLiteral("Enter the name of the template"),
                                              title, QStringLiteral("MyTemplate"));
    return name.remove(QLatin1Char(' '));
}

// The visual document, as the engine writes it, becomes the template of that name;
// one of the same name is replaced without a question.
void saveTemplate(FormRegistry& forms, const QString& name) {
    forms.get<Tessara>().ui.txtComp->saveDocument(
        forms.services().folder->path(templatefiles::writingPath(name)));
}

// Create and Convert. From the source view too the template is the visual document
// as it was at the last switch of views, not the source text.
void createTemplate(FormRegistry& forms) {
    Services& services = forms.services();
    try {
        const QString name = templateName(services, QStringLiteral("Create Template"));
        if (name.isEmpty())
            return;
        saveTemplate(forms, name);
        services.prompts->msgBox(QStringLiteral("Template Created!"), vbInformation,
                                 QStringLiteral("Template Manager"));
    } catch (const RuntimeFailure&) {
        services.prompts->msgBox(QStringLiteral("An error occured while converting to template. "
                                                "Please inform this problem to ") +
                                     kSupportMail,
                                 vbCritical, QStringLiteral("Unable to create template!"));
    }
}

// The chosen file replaces the visual document before the name is asked for, and
// stays there when no name is given. Cancel in the file dialog is a failure too.
void importTemplate(FormRegistry& forms) {
    Services& services = forms.services();
    try {
        CommonDialog& comdlg = forms.get<Zelvo>().ui.comdlg;
        comdlg.cancelError = true;
        comdlg.defaultExt = QStringLiteral("html");
        comdlg.filter = QStringLiteral("HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm");
        comdlg.showOpen();
        forms.get<Tessara>().ui.txtComp->loadDocument(comdlg.fileName);
        const QString name = templateName(services, QStringLiteral("Import Template"));
        if (name.isEmpty())
            return;
        saveTemplate(forms, name);
        services.prompts->msgBox(QStringLiteral("Template Imported!"), vbInformation,
                                 QStringLiteral("Template Manager"));
    } catch (const RuntimeFailure&) {
        services.prompts->msgBox(
            QStringLiteral("An error occurred while trying to perform the action"), vbCritical,
            document::kAssistant);
    }
}

// The page on more templates, in the program's browsing window; the program ships
// it, so it reads the same with no network.
void moreTemplates(FormRegistry& forms) {
    const QString address = QUrl::fromLocalFile(forms.services().folder->path(
                                                    QStringLiteral("misc/moretemplates.html")))
                                .toString();
    forms.get<frmMoreTemp>().browse(
        QStringLiteral("Download 300+ professional templates FREE:  Zelvo Tessara 3.0"), address);
}

} // namespace

void Zelvo::mnuTemplates() {
    showTemplates(forms());
}

void Tessara::mnuTemplates() {
    showTemplates(forms());
}

void Zelvo::mnuCreateTemplate() {
    createTemplate(forms());
}

void Tessara::mnuConvTemplate() {
    createTemplate(forms());
}

void Zelvo::mnuImportTemplate() {
    importTemplate(forms());
}

void Tessara::mnuImportTemplate() {
    importTemplate(forms());
}

void Zelvo::mnuMoreTemplates() {
    moreTemplates(forms());
}

void Tessara::mnuMoreTemplates() {
    moreTemplates(forms());
}

void StartUp::btnTemplates_Click() {
    FormRegistry& registry = forms();
    showTemplates(registry);
    unload();
}

} // namespace zt
