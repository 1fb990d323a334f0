#include "prewizard.h"

#include "mwizard.h"

#include "builders/protocol.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/prompts.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QComboBox>
#include <QPushButton>

namespace zt {

prewizard::prewizard(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("prewizard"), QStringLiteral("Morvane: Generate Code !!!"));
    setWindow(window);
    layOut(window,
           {
               // control, caption, default, place
               {text("txtFormName", ui.txtFormName, ui.txtFormNameView), "&Name of the Form"},
               {text("txtFormAction", ui.txtFormAction, ui.txtFormActionView), "&Action"},
               {combo("cmbAction", ui.cmbAction, {"POST", "GET"}), "&Method", "POST"},
               {button("OKButton", ui.OKButton), "Continue", "", Place::Accept},
               {button("CancelButton", ui.CancelButton), "Back", "", Place::Cancel},
           });
    ui.txtFormNameView->setMinimumWidth(260);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

prewizard::~prewizard() = default;

QString formCode(const QString& name, const QString& method, const QString& action,
                 const QString& body) {
    return QStringLiteral("<!-- Form Code by Morvane: By Orvek -->\r\n<br><form name=\"%1\" "
                          "method=\"%2\" action=\"%3\">\r\n%4\r\n</form><br>\r\n"
                          "<!-- End of form -->")
        .arg(name, method, action, body);
}

void prewizard::OKButton_Click() {
    if (ui.txtFormName.text().isEmpty() || ui.txtFormAction.text().isEmpty()) {
        services().prompts->msgBox(QStringLiteral("Please fill in the required fields"),
                                   vbInformation, QStringLiteral("Morvane"));
        return;
    }
    const QString body = forms().get<Mwizard>().ui.txtCode.text();
    const QString code =
        formCode(ui.txtFormName.text(), ui.cmbAction->currentText(), ui.txtFormAction.text(), body);
    deliverTo(forms(), targetOf(Dispatch::CompFirst, ui.txtCompOrEdit.text()), code);
    unload();
}

void prewizard::CancelButton_Click() {
    hide();
}

} // namespace zt
