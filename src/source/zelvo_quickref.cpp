// The quick reference bar above the tag list: the HTML and CSS libraries, and the
// form and table menus as popups. Which library the list holds is kept in the
// colours of the first two buttons, which the list's double click reads.
#include "shell/zelvo.h"

#include "platform/backcolor.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textfiles.h"

#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>

namespace zt {

namespace {

// A library's length is taken as a signed 16-bit number, so a longer one fails.
constexpr qint64 kLibraryLimit = 32767;

} // namespace

void Zelvo::loadTagList(const QString& path) {
    try {
        const QFileInfo file(path);
        if (!file.isFile() || file.size() > kLibraryLimit)
            throw RuntimeFailure(6, QStringLiteral("Overflow"));
        ui.lstAllTags->clear();
        fillTagList(textfiles::readLines(path));
    } catch (const RuntimeFailure&) {
        services().prompts->msgBox(QStringLiteral("Unable to perform requested action. Library "
                                                  "file seems to have been moved or renamed"),
                                   vbCritical, QStringLiteral("Assistant: Zelvo"));
    }
}

// The library goes into the list, then the colours mark its button as the chosen one,
// whether the load worked or not.
void Zelvo::useLibrary(const QString& file, QPushButton* chosen, QPushButton* other) {
    loadTagList(services().folder->path(QStringLiteral("misc\\") + file));
    setBackColor(*chosen, syscolour::k3DLight);
    setBackColor(*other, syscolour::k3DHighlight);
    ui.areaView->setFocus();
}

void Zelvo::btnQBHtml_Click() {
    useLibrary(QStringLiteral("htmlRef.lib"), ui.btnQBHtml, ui.btnQBCss);
}

void Zelvo::btnQBCss_Click() {
    useLibrary(QStringLiteral("cssRef.lib"), ui.btnQBCss, ui.btnQBHtml);
}

void Zelvo::btnQBForms_Click() {
    formMenuAtPointer();
    ui.areaView->setFocus();
}

void Zelvo::btnQBTables_Click() {
    tableMenuAtPointer();
    ui.areaView->setFocus();
}

} // namespace zt
