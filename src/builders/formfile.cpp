#include "formfile.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/services.h"

#include <QPushButton>

namespace zt {

formFile::formFile(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formFile",
                            .caption = QStringLiteral("File Upload : Zelvo"),
                            .helpPage = QStringLiteral("fileUpload.zhp"),
                            .shape = Dispatch::ThreeWay}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place, limits
              {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
              {text("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Value:"},
              {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:"},
              {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row, numeric()},
              {button("btnInsert", ui.btnInsert), "Insert", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
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
