#include "formfile.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"

#include <QPushButton>

namespace zt {

formFile::formFile(FormRegistry& forms)
    : formFile(forms, {.setup = {.name = "formFile",
                                 .caption = QStringLiteral("File Upload : Zelvo"),
                                 .helpPage = QStringLiteral("fileUpload.zhp"),
                                 .shape = Dispatch::ThreeWay}}) {}

formFile::formFile(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup) {
    Controls rows{
        // control, caption, default, place, limits
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Value:"},
        {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:"},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row,
         variant.checksNumbers ? numeric() : nullptr},
    };
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
}

formFile::~formFile() = default;

void formFile::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

QString formFile::fragment() {
    return inputTag({.type = QStringLiteral("file"),
                     .name = ui.txtName.text(),
                     .value = ui.txtDefault.text(),
                     .size = ui.txtSize.text(),
                     .tabIndex = ui.txtTab.text()});
}

} // namespace zt
