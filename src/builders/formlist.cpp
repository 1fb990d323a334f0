#include "formlist.h"

#include "platform/prompts.h"
#include "platform/textlineview.h"

#include <QPushButton>
#include <QRadioButton>

namespace zt {

Controls selectDialog(SelectControls& ui, const std::function<void(TextControl&)>& numeric,
                      PointList& points, const Control& accept, bool cancelAndHelp) {
    Controls rows{
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
        {points.editor(), "", "", Place::Line},
        accept,
    };
    if (cancelAndHelp) {
        rows.push_back({button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel});
        rows.push_back({button("btnHelp", ui.btnHelp), "Help", "", Place::Help});
    }
    return rows;
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
                            .helpPage = QStringLiteral("list.zhp"),
                            .hidesFirst = true}),
      pointList(*this, ui,
                {.pointsCaption = QStringLiteral("Opt&ions:"),
                 .clearAsks = vbYesNo | vbQuestion | vbDefaultButton2}) {
    build(ui.compOrEdit, selectDialog(ui, numeric(), pointList,
                                      {button("OKButton", ui.OKButton), "OK", "", Place::Accept}));
}

formList::~formList() = default;

QString formList::fragment() {
    return selectList(selectValues(ui), pointList.points());
}

} // namespace zt
