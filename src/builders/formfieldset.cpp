#include "formfieldset.h"

#include "fieldgen.h"

#include <QListWidget>
#include <QPushButton>

namespace zt {

formFieldset::formFieldset(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formFieldset",
                            .caption = QStringLiteral("Fieldset : Zelvo"),
                            .helpPage = QStringLiteral("fieldset.zhp")}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place
              {text("txtCaption", ui.txtCaption, ui.txtCaptionView), "&Caption:"},
              {list("listAlign", ui.listAlign, {"Left", "Right"}), "Caption &Alignment:", "Left"},
              {button("btnInsert", ui.btnInsert), "Insert", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
    txtCaption_Change();
    ui.txtCaption.addChangeHandler([this] { txtCaption_Change(); });
}

formFieldset::~formFieldset() = default;

// The alignment belongs to the caption: without one there is nothing to align.
void formFieldset::txtCaption_Change() {
    ui.listAlign->setEnabled(!ui.txtCaption.text().isEmpty());
}

QString formFieldset::fragment() {
    const QListWidgetItem* row = ui.listAlign->currentItem();
    return fieldsetTag(ui.txtCaption.text(), row ? row->text() : QString());
}

} // namespace zt
