#include "mfields.h"

#include "builders/fieldgen.h"
#include "builders/fieldparts.h"

#include "platform/services.h"

#include <QRadioButton>

namespace zt {

MformTextbox::MformTextbox(FormRegistry& forms)
    : formTextbox(forms, designerField("MformTextbox", QStringLiteral("Insert Text Box"))) {}

void MformTextbox::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

MformButton::MformButton(FormRegistry& forms)
    : formButton(forms, designerField("MformButton", QStringLiteral("Insert Button"))) {
    ui.radButton->setChecked(true);
}

MformRadChk::MformRadChk(FormRegistry& forms)
    : formRadChk(forms,
                 designerField("MformRadChk", QStringLiteral("Insert Option Buttons : Zelvo"))) {}

MformFile::MformFile(FormRegistry& forms)
    : formFile(forms, designerField("MformFile", QStringLiteral("File Upload"))) {}

MformFieldset::MformFieldset(FormRegistry& forms)
    : formFieldset(forms, designerField("MformFieldset", QStringLiteral("Fieldset"), true)) {}

MformHidden::MformHidden(FormRegistry& forms)
    : formHidden(forms,
                 designerField("MformHidden", QStringLiteral("Insert Hidden Element"), true)) {}

QString MformHidden::fragment() {
    return QStringLiteral("<body>") + hiddenTag(ui.txtName.text(), ui.txtValue.text()) +
           QStringLiteral("</body>");
}

} // namespace zt
