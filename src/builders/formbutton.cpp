#include "formbutton.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"

#include <QPushButton>
#include <QRadioButton>

namespace zt {

formButton::formButton(FormRegistry& forms)
    : formButton(forms, {.setup = {.name = "formButton",
                                   .caption = QStringLiteral("Insert Button : Zelvo"),
                                   .helpPage = QStringLiteral("button.zhp"),
                                   .shape = Dispatch::ThreeWay}}) {}

formButton::formButton(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup) {
    // Enter in any of the fields presses Insert, the dialog's default button.
    Controls rows{
        // control, caption, default, place, limits
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtValue", ui.txtValue, ui.txtValueView), "&Value (caption):"},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row,
         variant.checksNumbers ? numeric() : nullptr},
        {group("grpType"), "Type", "", Place::Line},
        {option("radButton", ui.radButton), "&Button", "", Place::InGroup},
        {option("radSubmit", ui.radSubmit), "&Submit", "", Place::InGroup},
        {option("radReset", ui.radReset), "&Reset", "", Place::InGroup},
    };
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
}

formButton::~formButton() = default;

void formButton::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

QString formButton::fragment() {
    const QString type = ui.radButton->isChecked()   ? QStringLiteral("button")
                         : ui.radSubmit->isChecked() ? QStringLiteral("submit")
                         : ui.radReset->isChecked()  ? QStringLiteral("reset")
                                                     : QString();
    return inputTag({.type = type,
                     .name = ui.txtName.text(),
                     .value = ui.txtValue.text(),
                     .tabIndex = ui.txtTab.text()});
}

} // namespace zt
