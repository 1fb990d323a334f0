#include "formtextbox.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/formregistry.h"
#include "platform/services.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <iterator>

namespace zt {

formTextbox::formTextbox(FormRegistry& forms)
    : formTextbox(forms, {.setup = {.name = "formTextbox",
                                    .caption = QStringLiteral("Insert Text Box : Zelvo"),
                                    .helpPage = QStringLiteral("textbox.zhp"),
                                    .shape = Dispatch::ThreeWay,
                                    .floats = false}}) {}

formTextbox::formTextbox(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup), ui(*forms.services().pickers) {
    Controls rows{
        // control, caption, default, place
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Text:"},
        {text("txtMaxLen", ui.txtMaxLen, ui.txtMaxLenView), "&Max Length:"},
        {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:"},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:"},
        {group("grpPassword"), "Convert To Password Field?", "", Place::Line},
        {option("radYes", ui.radYes), "&Yes", "", Place::InGroup},
        {option("radNo", ui.radNo), "N&o", "1", Place::InGroup},
        {check("chkReadOnly", ui.chkReadOnly), "&Read Only", "", Place::Line},
    };
    std::ranges::move(ui.rows("&Use Style Text Box", "Arial"), std::back_inserter(rows));
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
    ui.wire();
}

formTextbox::~formTextbox() = default;

void formTextbox::load() {
    fillFontList(*ui.listFont, services().desktop->screenFonts());
    ElementDialog::load();
}

// The focus is never moved to the empty name, and the dialog closes after the
// warning all the same: what was entered is gone.
void formTextbox::accept() {
    if (warnedOfNoName(ui.txtName, *services().prompts)) {
        unload();
        return;
    }
    ElementDialog::accept();
}

QString formTextbox::fragment() {
    return inputTag(
        {.type = ui.radYes->isChecked() ? QStringLiteral("password") : QStringLiteral("text"),
         .name = ui.txtName.text(),
         .value = ui.txtDefault.text(),
         .size = ui.txtSize.text(),
         .maxLength = ui.txtMaxLen.text(),
         .tabIndex = ui.txtTab.text(),
         .readOnly = ui.chkReadOnly->isChecked(),
         .style = ui.style(QStringLiteral("background-color"))});
}

} // namespace zt
