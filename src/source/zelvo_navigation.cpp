// Tag navigation and search in the source view: Smart Select, Find End Tag, Auto
// Delete, Find and Find Next.
#include "shell/zelvo.h"

#include "findme.h"
#include "tagnavigation.h"

#include "shell/document.h"

#include "platform/formregistry.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/vbstrings.h"

#include <QCheckBox>

namespace zt {

namespace {

void showWarning(Zelvo& form, const char* text) {
    form.services().prompts->msgBox(QString::fromLatin1(text), vbExclamation, document::kAssistant);
}

// Find End Tag and Auto Delete. Any failure after Smart Select shows one box; a
// successful Find End Tag shows the same box over its selection, as it always has,
// since the command goes on to its failure box instead of ending.
void findEndTag(Zelvo& form, bool deleteTags) {
    form.mnusmartsel();
    try {
        switch (searchEndTag(form.ui.area, deleteTags)) {
        case EndTag::NotFound:
            showWarning(form, "End of the tag was not found");
            form.ui.areaView->setFocus();
            return;
        case EndTag::Deleted:
            return;
        case EndTag::Selected:
            break;
        }
    } catch (const RuntimeFailure&) {
    }
    showWarning(form, "Unexpected error occurred");
}

} // namespace

void Zelvo::mnusmartsel() {
    smartSelect(ui.area);
}

void Zelvo::mnuFindEndTag() {
    findEndTag(*this, false);
}

void Zelvo::mnuAutoDelete() {
    findEndTag(*this, true);
}

void Zelvo::mnuFind() {
    showFindMe();
}

void Zelvo::showFindMe() {
    forms().get<FindMe>().show();
}

// Find Next goes on from one character behind the start of the selection, so a match
// may overlap the last one. Match Case is read from the Find dialog, which Find
// unloaded: the read loads a fresh one, hidden and unticked, so Find Next ignores
// case. It has no failure path: positions beyond 32767 are the run-time failure.
void Zelvo::mnuFindNext() {
    const qint16 length = vb::toInteger(vb::Len(ui.txtSearch.text()));
    const qint16 from = vb::toInteger(qint64(ui.area.selStart()) + 2);
    const bool matchCase = forms().get<FindMe>().ui.chkCase->isChecked();
    const qint16 found = findFrom(ui.area.text(), ui.txtSearch.text(), from, matchCase);
    if (found < 1) {
        reportSearchFinished(*services().prompts);
        return;
    }
    ui.area.setSelStart(found);
    ui.area.setSelLength(length);
}

} // namespace zt
