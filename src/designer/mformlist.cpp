#include "mformlist.h"

#include "builders/fieldparts.h"
#include "builders/listgen.h"

#include "platform/prompts.h"

namespace zt {

MformList::MformList(FormRegistry& forms)
    : ElementDialog(forms,
                    [] {
                        Setup setup = designerField("MformList", QStringLiteral("List")).setup;
                        setup.hidesFirst = true;
                        return setup;
                    }()),
      pointList(*this, ui,
                {.pointsCaption = QStringLiteral("Opt&ions:"),
                 .addCaption = QStringLiteral("&Add Point"),
                 .multiLinePoints = true,
                 .movesThroughCorrection = true,
                 .clearAsks = vbYesNo | vbQuestion | vbDefaultButton2}) {
    build(selectDialog(ui, {}, pointList,
                       {button("btnInsert", ui.btnInsert), "Create List", "", Place::Accept},
                       false));
}

MformList::~MformList() = default;

QString MformList::fragment() {
    return selectList(selectValues(ui), pointList.points());
}

} // namespace zt
