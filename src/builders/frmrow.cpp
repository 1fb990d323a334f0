#include "frmrow.h"

#include "checks.h"
#include "colours.h"
#include "tablegen.h"

#include "platform/formregistry.h"
#include "platform/services.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace zt {

frmrow::frmrow(FormRegistry& forms)
    : ElementDialog(forms, {.name = "frmrow",
                            .caption = QStringLiteral("Insert Rows : Zelvo"),
                            .helpPage = QStringLiteral("tb03.zhp"),
                            .shape = Dispatch::SourceOnly}),
      ui(*forms.services().pickers) {
    // A refused character leaves the rest, or "2" when nothing is left; a field the
    // user empties stays empty.
    const auto digits = [this](TextControl& field) {
        checkDigits(field, ui.checkee, *services().prompts, QStringLiteral("2"));
    };
    build(ui.compOrEdit,
          {
              // control, caption, default, place, limits
              {text("txtrow", ui.txtrow, ui.txtrowView), "&Rows:", "2", Place::Row, digits},
              {text("txtcol", ui.txtcol, ui.txtcolView), "C&olumns:", "2", Place::Row, digits},
              {combo("cmbcolour", ui.cmbcolour, namedColours() + QStringList{"none"}),
               "&Colour:", "none"},
              {button("btnMoreColours", ui.btnMoreColours), "More Colours...", "", Place::Beside},
              {check("chkEmptyTable", ui.chkEmptyTable), "Create &Empty Rows", "", Place::Line},
              {button("OKButton", ui.OKButton), "Insert Rows", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
    onClick(ui.btnMoreColours, [this] { btnMoreColours_Click(); });
}

frmrow::~frmrow() = default;

QString frmrow::fragment() {
    return rowsMarkup({.rows = ui.txtrow.text(),
                       .cols = ui.txtcol.text(),
                       .colour = ui.cmbcolour->currentText(),
                       .emptyTable = checkValue(ui.chkEmptyTable) == 1});
}

void frmrow::btnMoreColours_Click() {
    pickHexColour(ui.comdlg, *ui.cmbcolour);
}

} // namespace zt
