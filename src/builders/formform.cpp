#include "formform.h"

#include "formformgen.h"

#include "platform/prompts.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QComboBox>
#include <QPushButton>

namespace zt {

formForm::formForm(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formForm",
                            .caption = QStringLiteral("Insert Form : Zelvo"),
                            .helpPage = QStringLiteral("forms.zhp"),
                            .shape = Dispatch::ThreeWay,
                            .console = ConsoleLanding::AtSelectionForm}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place
              {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
              {text("txtAction", ui.txtAction, ui.txtActionView), "&Action:"},
              {combo("cmbMethod", ui.cmbMethod, {"Get", "Post"}), "&Method:", "Get"},
              {combo("cmbTarget", ui.cmbTarget, {"_blank", "_self", "_parent", "_top"}),
               "&Target:", "_self"},
              {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
    // Room for the address of a script.
    ui.txtActionView->setMinimumWidth(260);
}

formForm::~formForm() = default;

void formForm::accept() {
    if (ui.txtName.text().isEmpty()) {
        services().prompts->msgBox(QStringLiteral("Please enter a valid name"), vbExclamation,
                                   QStringLiteral("Field Missing"));
        ui.txtNameView->setFocus();
        return;
    }
    deliver(fragment());
    unload();
}

QString formForm::fragment() {
    return formElement({.name = ui.txtName.text(),
                        .method = ui.cmbMethod->currentText(),
                        .action = ui.txtAction.text(),
                        .target = ui.cmbTarget->currentText()},
                       ui.compOrEdit.text());
}

} // namespace zt
