#include "formfieldset.h"

#include "fieldgen.h"
#include "fieldparts.h"

#include <QListWidget>
#include <QPushButton>

namespace zt {

formFieldset::formFieldset(FormRegistry& forms)
    : formFieldset(forms, {.setup = {.name = "formFieldset",
                                     .caption = QStringLiteral("Fieldset : Zelvo"),
                                     .helpPage = QStringLiteral("fieldset.zhp")}}) {}

formFieldset::formFieldset(FormRegistry& forms, const FieldVariant& variant)
    : ElementDialog(forms, variant.setup) {
    Controls rows{
        // control, caption, default, place
        {text("txtCaption", ui.txtCaption, ui.txtCaptionView), "&Caption:"},
        {list("listAlign", ui.listAlign, {"Left", "Right"}), "Caption &Alignment:", "Left"},
    };
    addFoot(rows, variant, ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(ui.compOrEdit, rows);
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
