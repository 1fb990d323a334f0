#include "templates.h"

#include "shell/document.h"
#include "shell/modapi.h"
#include "shell/startup.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/dialogparts.h"
#include "platform/filelistbox.h"
#include "platform/formregistry.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/vbstrings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace templatefiles {

QString writingPath(const QString& name) {
    return QStringLiteral("templates/Temp") + name + QStringLiteral(".html");
}

QString readingPath(const QString& name) {
    return QStringLiteral("templates/temp") + name + QStringLiteral(".html");
}

QString listedName(const QString& fileName) {
    const int length = vb::Len(fileName);
    return length > 9 ? vb::Mid(fileName, 5, length - 9) : fileName;
}

} // namespace templatefiles

templates::templates(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("templates"),
                                    QStringLiteral("Zelvo Tessara Template Manager"));
    setWindow(window);
    // The old list control matched "*.htm" to ".html" files too.
    ui.FileTemp = new FileListBox("FileTemp", QStringLiteral("*.htm;*.html"), window);
    ui.FileTemp->hide();
    ui.listTemplates = new QListWidget(window);
    ui.listTemplates->setObjectName(QStringLiteral("listTemplates"));
    ui.listTemplates->setFixedWidth(200);
    auto* label = new QLabel(QStringLiteral("Choose a template"), window);
    label->setBuddy(ui.listTemplates);
    ui.PrevTemplate = services().makeEngine(window);
    ui.OKButton = makeButton(window, "OKButton", QStringLiteral("OK"));
    ui.CancelButton = makeButton(window, "CancelButton", QStringLiteral("Cancel"));
    ui.OKButton->setDefault(true);
    window->setCancelButton(ui.CancelButton);

    auto* list = new QVBoxLayout;
    list->addWidget(label);
    list->addWidget(ui.listTemplates, 1);
    auto* body = new QHBoxLayout;
    body->addLayout(list);
    if (QWidget* preview = ui.PrevTemplate->widget()) {
        preview->setMinimumSize(640, 460);
        body->addWidget(preview, 1);
    }
    auto* foot = new QHBoxLayout;
    foot->addStretch(1);
    foot->addWidget(ui.OKButton);
    foot->addWidget(ui.CancelButton);
    auto* layout = new QVBoxLayout(window);
    layout->addLayout(body, 1);
    layout->addLayout(foot);

    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    QObject::connect(ui.listTemplates, &QListWidget::currentRowChanged, ui.listTemplates,
                     guarded([this](int) { listTemplates_Click(); }));
}

templates::~templates() = default;

void templates::load() {
    ui.PrevTemplate->setBrowseMode(true);
    stayOnTop(*this);
}

void templates::fill() {
    ui.listTemplates->clear();
    ui.FileTemp->setPath(services().folder->path(QStringLiteral("templates")));
    for (int i = 0; i < ui.FileTemp->count(); ++i)
        ui.listTemplates->addItem(templatefiles::listedName(ui.FileTemp->item(i)->text()));
}

void templates::listTemplates_Click() {
    const QString name =
        ui.listTemplates->currentItem() ? ui.listTemplates->currentItem()->text() : QString();
    try {
        ui.PrevTemplate->loadDocument(services().folder->path(templatefiles::readingPath(name)));
    } catch (const RuntimeFailure&) {
    }
}

void templates::OKButton_Click() {
    try {
        hide();
        const QString name =
            ui.listTemplates->currentItem() ? ui.listTemplates->currentItem()->text() : QString();
        const int answer = services().prompts->msgBox(
            QStringLiteral("Are you sure you want to close existing document?"),
            vbYesNo | vbQuestion | vbDefaultButton2, document::kAssistant);
        Tessara& tessara = forms().get<Tessara>();
        if (answer == vbYes) {
            forms().get<Zelvo>().hide();
            tessara.ui.txtComp->loadDocument(
                services().folder->path(templatefiles::readingPath(name)));
            tessara.show();
            return;
        }
        // A No ends in the error box too, though nothing failed.
        tessara.ui.txtComp->setFocus();
    } catch (const RuntimeFailure&) {
    }
    services().prompts->msgBox(
        QStringLiteral("Error loading template. Please report to author immediately"), vbCritical,
        QStringLiteral("Error Loading Template"));
}

void templates::CancelButton_Click() {
    hide();
}

void showTemplates(FormRegistry& forms) {
    templates& manager = forms.get<templates>();
    manager.fill();
    manager.show();
}

} // namespace zt
