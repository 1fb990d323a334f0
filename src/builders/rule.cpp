#include "rule.h"

#include "colours.h"
#include "rulegen.h"
#include "table.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace zt {

rule::rule(FormRegistry& forms)
    : ElementDialog(forms, {.name = "rule",
                            .caption = QStringLiteral("Insert Horizontal Rule : Zelvo"),
                            .helpPage = QStringLiteral("hr.zhp"),
                            .rememberIn = QStringLiteral("HRule")}),
      ui(*forms.services().pickers) {
    build(
        ui.compOrEdit,
        {
            // control, caption, default, place, limits
            {text("txtWidth", ui.txtWidth, ui.txtWidthView), "&Width:", "", Place::Row, numeric()},
            {check("chkPercentage", ui.chkPercentage), "Percentage", "", Place::Beside},
            {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:", "", Place::Row, numeric()},
            {check("chkShade", ui.chkShade), "No Shade", "", Place::Beside},
            {combo("cmbAlign", ui.cmbAlign, {"Left", "Center", "Right"}), "&Alignment:", "Center"},
            {text("txtColour", ui.txtColour, ui.txtColourView), "&Colour:"},
            {button("btnShowColours", ui.btnShowColours), "Colours...", "", Place::Beside},
            {check("chkRemember", ui.chkRemember), "Remember Settings", "", Place::Line},
            {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
            {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
            {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
        });
    onClick(ui.btnShowColours, [this] { btnShowColours_Click(); });
}

rule::~rule() = default;

QString rule::fragment() {
    return ruleTag({.width = ui.txtWidth.text(),
                    .percentage = checkValue(ui.chkPercentage) == 1,
                    .size = ui.txtSize.text(),
                    .noShade = checkValue(ui.chkShade) == 1,
                    .align = ui.cmbAlign->currentText(),
                    .colour = ui.txtColour.text()});
}

std::vector<Remembered> rule::rememberedFields() {
    return {remembered(QStringLiteral("Remember"), QStringLiteral("0"), ui.chkRemember),
            remembered(QStringLiteral("NoShade"), QStringLiteral("0"), ui.chkShade),
            remembered(QStringLiteral("Alignment"), QStringLiteral("Center"), ui.cmbAlign),
            remembered(QStringLiteral("Colour"), QString(), ui.txtColour),
            remembered(QStringLiteral("Size"), QString(), ui.txtSize),
            remembered(QStringLiteral("Percentage"), QStringLiteral("0"), ui.chkPercentage),
            remembered(QStringLiteral("Width"), QString(), ui.txtWidth)};
}

// Only a "Remember" of -1 restores, and a ticked box never stores that: the dialog
// opens with its design defaults, whatever was remembered.
bool rule::restoresRemembered(const QString& stored) const {
    return vb::CDbl(stored) == -1;
}

// With the box clear the value comes from the table dialog's box, which loads that
// dialog, so its own remembered choice decides.
QString rule::rememberWhenClear() {
    return QString::number(checkValue(forms().get<table>().ui.chkRemember));
}

void rule::btnShowColours_Click() {
    pickHexColour(ui.comdlg, *ui.txtColourView);
}

} // namespace zt
