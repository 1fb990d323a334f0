#include "formradchk.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

const char16_t kHelp[] =
    u"Radio buttons let the visitor pick one answer of several; check boxes let "
    u"them tick any number of answers, or none.\r\n\r\n"
    u"Name: the name the answer is sent under. Give every radio button of one "
    u"question the same name, so that picking one clears the others. Give each "
    u"check box a name of its own.\r\n\r\n"
    u"Value: what is sent when this button or box is picked, such as \"yes\" or "
    u"\"red\". Without it the browser sends \"on\".\r\n\r\n"
    u"Tab Index: where the field comes when the visitor moves through the form "
    u"with the Tab key; lower numbers come first.\r\n\r\n"
    u"Checked by default: the field is picked when the page opens.\r\n\r\n"
    u"Write the words the visitor reads beside the field yourself, next to the "
    u"tag this dialog makes.";

} // namespace

formRadChk::formRadChk(FormRegistry& forms)
    : formRadChk(forms, {.setup = {.name = "formRadChk",
                                   .caption = QStringLiteral("Insert Option Buttons : Zelvo"),
                                   .shape = Dispatch::ThreeWay}}) {}

formRadChk::formRadChk(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup) {
    Controls rows{
        // control, caption, default, place
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtValue", ui.txtValue, ui.txtValueView), "&Value:"},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:"},
        {group("grpType"), "Type", "", Place::Line},
        {option("radRadio", ui.radRadio), "&Radio Button", "", Place::InGroup},
        {option("radCheckbox", ui.radCheckbox), "Check &Box", "1", Place::InGroup},
        {check("chkChecked", ui.chkChecked), "&Checked by default", "", Place::Line},
    };
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
    ui.txtHelp.setText(QString::fromUtf16(kHelp));
}

formRadChk::~formRadChk() = default;

void formRadChk::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

void formRadChk::help() {
    services().prompts->msgBox(ui.txtHelp.text(), vbInformation,
                               QStringLiteral("Help: Zelvo Tessara"));
}

QString formRadChk::fragment() {
    return inputTag(
        {.type = ui.radRadio->isChecked() ? QStringLiteral("radio") : QStringLiteral("checkbox"),
         .name = ui.txtName.text(),
         .value = ui.txtValue.text(),
         .tabIndex = ui.txtTab.text(),
         .checked = ui.chkChecked->isChecked()});
}

} // namespace zt
