#include "table.h"

#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace zt {

table::table(FormRegistry& forms)
    : ElementDialog(forms, {.name = "table",
                            .caption = QStringLiteral("Insert Table : Zelvo"),
                            .helpPage = QStringLiteral("tb01.zhp"),
                            .rememberIn = QStringLiteral("Table"),
                            // Unlike most dialogs this one does not float above the others.
                            .floats = false}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place, limits
              {text("txtrow", ui.txtrow, ui.txtrowView), "Rows:", "2", Place::Row, numeric()},
              {text("txtcol", ui.txtcol, ui.txtcolView), "Columns:", "2", Place::Row, numeric()},
              {text("txtcelpad", ui.txtcelpad, ui.txtcelpadView), "Cell Padding:", "0", Place::Row,
               numeric()},
              {text("txtcelspac", ui.txtcelspac, ui.txtcelspacView), "Cell Spacing:", "0",
               Place::Row, numeric()},
              {text("txtBorder", ui.txtBorder, ui.txtBorderView), "Border:", "1", Place::Row,
               numeric()},
              {combo("cmbAlign", ui.cmbAlign, {"Default", "Left", "Centre", "Right"}),
               "Alignment:", "Default"},
              {check("chkwidth", ui.chkwidth), "Specify Width", "1", Place::Line},
              {text("txtWidth", ui.txtWidth, ui.txtWidthView), "Width:", "100", Place::Row,
               numeric()},
              {option("radpixels", ui.radpixels), "Pixels", "", Place::Beside},
              {option("radpercentage", ui.radpercentage), "Percentage", "1", Place::Beside},
              {text("txtColour", ui.txtColour, ui.txtColourView), "Colour:"},
              {check("chkEmptyTable", ui.chkEmptyTable), "Create Empty Table", "", Place::Line},
              {check("chkRemember", ui.chkRemember), "Remember Settings", "", Place::Line},
          });
    // Restoring the box changes it as a click does.
    QObject::connect(ui.chkwidth, &QCheckBox::stateChanged, ui.chkwidth,
                     guarded([this](int) { chkwidth_Click(); }));
}

table::~table() = default;

// The accept step with its template comes with the rest of the dialog; until then
// the dialog has no accept button that would ask for it.
QString table::fragment() {
    return {};
}

std::vector<Remembered> table::rememberedFields() {
    Remembered remember{QStringLiteral("Remember"), QStringLiteral("0"),
                        [this] { return QString::number(checkValue(ui.chkRemember)); },
                        [this](const QString&) { ui.chkRemember->setChecked(true); }};
    return {std::move(remember), remembered(QStringLiteral("Rows"), QStringLiteral("2"), ui.txtrow),
            remembered(QStringLiteral("Cols"), QStringLiteral("2"), ui.txtcol),
            remembered(QStringLiteral("CelPad"), QStringLiteral("0"), ui.txtcelpad),
            remembered(QStringLiteral("CelSpac"), QStringLiteral("0"), ui.txtcelspac),
            remembered(QStringLiteral("Border"), QStringLiteral("1"), ui.txtBorder),
            // "left" is no row of the list and matches no alignment of the table.
            remembered(QStringLiteral("Align"), QStringLiteral("left"), ui.cmbAlign),
            remembered(QStringLiteral("Width"), QStringLiteral("100"), ui.txtWidth),
            remembered(QStringLiteral("Colour"), QString(), ui.txtColour),
            remembered(QStringLiteral("EmptyTable"), QStringLiteral("0"), ui.chkEmptyTable),
            remembered(QStringLiteral("SpecWidth"), QStringLiteral("1"), ui.chkwidth),
            remembered(QStringLiteral("PixOrPer"), QStringLiteral("true"), ui.radpercentage)};
}

void table::chkwidth_Click() {
    const bool on = ui.chkwidth->isChecked();
    ui.txtWidthView->setEnabled(on);
    ui.radpixels->setEnabled(on);
    ui.radpercentage->setEnabled(on);
}

} // namespace zt
