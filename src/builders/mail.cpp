#include "mail.h"

#include "linkgen.h"

#include "platform/textlineview.h"

#include <QCheckBox>
#include <QPushButton>

namespace zt {

mail::mail(FormRegistry& forms)
    : ElementDialog(forms, {.name = "mail",
                            .caption = QStringLiteral("Link to E-Mail ID : Zelvo"),
                            .shape = Dispatch::SourceOnly}) {
    build({
        // control, caption, default, place, limits, warning
        {text("txtLink", ui.txtLink, ui.txtLinkView),
         "&E-Mail ID:",
         "",
         Place::Row,
         {},
         QStringLiteral("The E-Mail address has not been mentioned")},
        {text("txtSubject", ui.txtSubject, ui.txtSubjectView), "&Subject:"},
        {text("txtTextToDisp", ui.txtTextToDisp, ui.txtTextToDispView), "&Text To Display:"},
        {text("txtScreentip", ui.txtScreentip, ui.txtScreentipView), "Screen &Tip:"},
        {check("chkNoUnderline", ui.chkNoUnderline), "&No Underline", "", Place::Row},
        {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
        {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
    });
}

mail::~mail() = default;

QString mail::fragment() {
    return mailTag({.address = ui.txtLink.text(),
                    .subject = ui.txtSubject.text(),
                    .screenTip = ui.txtScreentip.text(),
                    .noUnderline = ui.chkNoUnderline->isChecked(),
                    .text = ui.txtTextToDisp.text()});
}

} // namespace zt
