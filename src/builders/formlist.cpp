#include "formlist.h"

#include "platform/prompts.h"
#include "platform/textlineview.h"

#include <QPushButton>
#include <QRadioButton>

namespace zt {

Controls selectFields(SelectControls& ui, const std::function<void(TextControl&)>& numeric) {
    return {
        // control, caption, default, place, limits, warning when empty
        {text("txtName", ui.txtName, ui.txtNameView),
         "&Name:",
         "",
         Place::Row,
         {},
         QStringLiteral("A valid name has not been entered")},
        {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:", "", Place::Row, numeric},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row, numeric},
        {group("grpMultiple"), "Allow Multiple Selections", "", Place::Line},
        {option("radYes", ui.radYes), "&Yes", "", Place::InGroup},
        {option("radNo", ui.radNo), "N&o", "1", Place::InGroup},
    };
}

SelectValues selectValues(const SelectControls& ui) {
    return {.name = ui.txtName.text(),
            .size = ui.txtSize.text(),
            .tabIndex = ui.txtTab.text(),
            .multiple = ui.radYes->isChecked()};
}

formList::formList(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formList",
                            .caption = QStringLiteral("List : Zelvo"),
                            .helpPage = QStringLiteral("list.zhp")}),
      pointList(*this, ui,
                {.pointsCaption = QStringLiteral("Opt&ions:"),
                 .clearAsks = vbYesNo | vbQuestion | vbDefaultButton2}) {
    Controls controls = selectFields(ui, numeric());
    controls.insert(controls.end(),
                    {
                        {pointList.editor(), "", "", Place::Line},
                        {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                        {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                        {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                    });
    build(ui.compOrEdit, controls);
}

formList::~formList() = default;

void formList::accept() {
    if (warnedOfMissing())
        return;
    hide();
    deliver(fragment());
    unload();
}

QString formList::fragment() {
    return selectList(selectValues(ui), pointList.points());
}

} // namespace zt
