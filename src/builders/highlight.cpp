#include "highlight.h"

#include "colours.h"
#include "highlightgen.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QPushButton>

namespace zt {

highlight::highlight(FormRegistry& forms)
    : ElementDialog(forms, {.name = "highlight",
                            .caption = QStringLiteral("Highlight Text : Zelvo"),
                            .helpPage = QStringLiteral("highlight.zhp")}),
      ui(*forms.services().pickers) {
    build(ui.compOrEdit, {
                             // control, caption, default, place
                             {memo("txthighlight", ui.txthighlight, ui.txthighlightView),
                              "&Text to highlight:", "", Place::Line},
                             {text("txtColour", ui.txtColour, ui.txtColourView), "&Colour:"},
                             {button("openColor", ui.openColor), "Colour...", "", Place::Beside},
                             {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                             {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                             {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                         });
    window()->resize(420, 280);
    onClick(ui.openColor, [this] { openColor_Click(); });
}

highlight::~highlight() = default;

QString highlight::fragment() {
    return highlightSpan({.colour = ui.txtColour.text(), .text = ui.txthighlight.text()});
}

void highlight::openColor_Click() {
    pickHexColour(ui.comdlg, *ui.txtColourView);
}

} // namespace zt
