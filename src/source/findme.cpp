#include "findme.h"

#include "tagnavigation.h"

#include "shell/modapi.h"
#include "shell/zelvo.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QCheckBox>
#include <QPushButton>

namespace zt {

FindMe::FindMe(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("FindMe"), QStringLiteral("Find : Zelvo"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {text("txtFind", ui.txtFind, ui.txtFindView), "Fi&nd what:"},
                       {check("chkCase", ui.chkCase), "Match &Case", "", Place::Row},
                       {button("OKButton", ui.OKButton), "Find", "", Place::Accept},
                       {button("CancelButton", ui.CancelButton), "Close", "", Place::Cancel},
                   });
    ui.txtFindView->setMinimumWidth(240);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

FindMe::~FindMe() = default;

void FindMe::load() {
    stayOnTop(*this);
}

// Find has no failure path: a match beyond 32767 is the run-time failure.
void FindMe::OKButton_Click() {
    TextControl& area = forms().get<Zelvo>().ui.area;
    const QString what = ui.txtFind.text();
    const qint16 length = vb::toInteger(vb::Len(what));
    const qint16 found = findFrom(area.text(), what, 1, ui.chkCase->isChecked());
    if (found < 1) {
        reportSearchFinished(*services().prompts);
    } else {
        area.setSelStart(found);
        area.setSelLength(length);
        forms().get<Zelvo>().ui.txtSearch.setText(what);
    }
    unload();
}

void FindMe::CancelButton_Click() {
    unload();
}

void reportSearchFinished(Prompts& prompts) {
    prompts.msgBox(QStringLiteral("Zelvo Tessara finished searching document"), vbOKOnly,
                   QStringLiteral("Zelvo Tessara"));
}

} // namespace zt
