#include "formbutton.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"

#include <QPushButton>
#include <QRadioButton>

namespace zt {

formButton::formButton(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formButton",
                            .caption = QStringLiteral("Insert Button : Zelvo"),
                            .helpPage = QStringLiteral("button.zhp"),
                            .shape = Dispatch::ThreeWay}) {
    // Enter in any of the fields presses Insert, the dialog's default button.
    build(ui.compOrEdit,
          {
              // control, caption, default, place, limits
              {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
              {text("txtValue", ui.txtValue, ui.txtValueView), "&Value (caption):"},
              {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row, numeric()},
              {group("grpType"), "Type", "", Place::Line},
              {option("radButton", ui.radButton), "&Button", "", Place::InGroup},
              {option("radSubmit", ui.radSubmit), "&Submit", "", Place::InGroup},
              {option("radReset", ui.radReset), "&Reset", "", Place::InGroup},
              {button("btnInsert", ui.btnInsert), "Insert", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
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
