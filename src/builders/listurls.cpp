#include "listurls.h"

#include "platform/prompts.h"

#include <QPushButton>

namespace zt {

ListURLs::ListURLs(FormRegistry& forms)
    : ElementDialog(forms, {.name = "ListURLs",
                            .caption = QStringLiteral("List With Linked Points : Zelvo"),
                            .helpPage = QStringLiteral("linkedlists.zhp")}),
      pointList(*this, ui,
                {.pointsCaption = QStringLiteral("Options"),
                 .linked = true,
                 .hidesAround = true,
                 .removeWarning = QStringLiteral(
                     "No point selected to remove. Please click on a point in the options list"),
                 .removeFocusesButton = false,
                 .clearAsks = vbYesNo,
                 .clearFocusesPoints = false}) {
    build(ui.compOrEdit,
          selectDialog(ui, numeric(), pointList,
                       {button("btnInsert", ui.btnInsert), "&Insert", "", Place::Accept}));
}

ListURLs::~ListURLs() = default;

void ListURLs::accept() {
    hide();
    if (warnedOfMissing()) {
        show();
        return;
    }
    deliver(fragment());
    unload();
}

QString ListURLs::fragment() {
    return linkedList(selectValues(ui), pointList.points(), pointList.urls());
}

} // namespace zt
