#include "formhidden.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"
#include "platform/textlineview.h"

#include <QPushButton>

namespace zt {

formHidden::formHidden(FormRegistry& forms)
    : formHidden(forms, {.setup = {.name = "formHidden",
                                   .caption = QStringLiteral("Insert Hidden Element : Zelvo"),
                                   .helpPage = QStringLiteral("hidden.zhp"),
                                   .shape = Dispatch::CompFirst}}) {}

formHidden::formHidden(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup) {
    Controls rows{
        // control, caption, default, place
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtValue", ui.txtValue, ui.txtValueView), "&Value:"},
    };
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
}

formHidden::~formHidden() = default;

// Its own plain box, without an icon or a title of its own, unlike the other fields.
void formHidden::accept() {
    if (ui.txtName.text().isEmpty()) {
        services().prompts->msgBox(QStringLiteral("Invalid name"));
        ui.txtNameView->setFocus();
        return;
    }
    ElementDialog::accept();
}

QString formHidden::fragment() {
    const QString tag = hiddenTag(ui.txtName.text(), ui.txtValue.text());
    if (ui.compOrEdit.text() == caller::kComp)
        return QStringLiteral("<body>") + tag + QStringLiteral("</body>");
    return tag;
}

} // namespace zt
