#include "lboxprops.h"

#include "boxgen.h"
#include "lmanager.h"

#include "builders/colours.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

using U = LBoxProps::Ui;

// The fields of one border group: the shared "All" group, then the four sides in
// the order the box writes them.
struct BorderGroup {
    const char* frame;
    const char* caption;
    const char* typeName;
    QComboBox* U::*type;
    const char* thicknessName;
    TextControl U::*thickness;
    TextLineView* U::*thicknessView;
    const char* upDownName;
    UpDown U::*upDown;
    const char* colourName;
    TextControl U::*colour;
    TextLineView* U::*colourView;
    const char* buttonName;
    QPushButton* U::*button;
};

const BorderGroup kGroups[] = {
    {"frmAll", "All borders", "cmbAllBorderType", &U::cmbAllBorderType, "txtAllThickness",
     &U::txtAllThickness, &U::txtAllThicknessView, "UDAll", &U::UDAll, "txtAllColour",
     &U::txtAllColour, &U::txtAllColourView, "btnAllColour", &U::btnAllColour},
    {"frmLeft", "Left", "cmbIndiLeftType", &U::cmbIndiLeftType, "txtLeftThickness",
     &U::txtLeftThickness, &U::txtLeftThicknessView, "UDLeft", &U::UDLeft, "txtLeftColour",
     &U::txtLeftColour, &U::txtLeftColourView, "btnLeftColour", &U::btnLeftColour},
    {"frmRight", "Right", "cmbIndiRightType", &U::cmbIndiRightType, "txtRightThickness",
     &U::txtRightThickness, &U::txtRightThicknessView, "UDRight", &U::UDRight, "txtRightColour",
     &U::txtRightColour, &U::txtRightColourView, "btnRightColour", &U::btnRightColour},
    {"frmTop", "Top", "cmbIndiTopType", &U::cmbIndiTopType, "txtTopThickness", &U::txtTopThickness,
     &U::txtTopThicknessView, "UDTop", &U::UDTop, "txtTopColour", &U::txtTopColour,
     &U::txtTopColourView, "btnTopColour", &U::btnTopColour},
    {"frmBottom", "Bottom", "cmbIndiBottomType", &U::cmbIndiBottomType, "txtBottomThickness",
     &U::txtBottomThickness, &U::txtBottomThicknessView, "UDBottom", &U::UDBottom,
     "txtBottomColour", &U::txtBottomColour, &U::txtBottomColourView, "btnBottomColour",
     &U::btnBottomColour},
};

} // namespace

LBoxProps::LBoxProps(FormRegistry& forms)
    : ElementDialog(forms, {.name = "LBoxProps", .caption = QStringLiteral("Box Properties")}),
      ui(*forms.services().pickers) {
    Controls controls{
        // control, caption, default, place
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtBGColour", ui.txtBGColour, ui.txtBGColourView), "&Background:"},
        {button("btnBGColour", ui.btnBGColour), "...", "", Place::Beside},
    };
    // The side groups stand two by two under their option.
    const Place groupPlace[] = {Place::Row, Place::Row, Place::InGroup, Place::Row, Place::InGroup};
    int i = 0;
    for (const BorderGroup& g : kGroups) {
        if (i == 0)
            controls.push_back({option("radAllBorder", ui.radAllBorder), "&All Borders Similar",
                                "1", Place::Line});
        if (i == 1)
            controls.push_back({option("radIndiBorder", ui.radIndiBorder),
                                "&Individual Border Properties", "", Place::Line});
        TextControl& thickness = ui.*g.thickness;
        controls.insert(
            controls.end(),
            {
                {group(g.frame), g.caption, "", groupPlace[i++]},
                {combo(g.typeName, ui.*g.type, borderTypes()), "Type:", "solid", Place::InGroup},
                {text(g.thicknessName, thickness, ui.*g.thicknessView), "Thickness:", "1",
                 Place::InGroup},
                {upDown(g.upDownName, ui.*g.upDown,
                        [&thickness](int step) { stepNumber(thickness, step); }),
                 "", "", Place::Beside},
                {text(g.colourName, ui.*g.colour, ui.*g.colourView), "Colour:", "", Place::InGroup},
                {button(g.buttonName, ui.*g.button), "...", "", Place::Beside},
            });
    }
    controls.push_back({button("OKButton", ui.OKButton), "OK", "", Place::Accept});
    controls.push_back({button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel});
    build(controls);

    const auto colourButton = [this](QPushButton* button, TextControl& colour) {
        onClick(button, [this, &colour] { pickColour(colour); });
        button->setToolTip(QStringLiteral("Pick a colour"));
        button->setFixedWidth(32);
    };
    colourButton(ui.btnBGColour, ui.txtBGColour);
    for (const BorderGroup& g : kGroups)
        colourButton(ui.*g.button, ui.*g.colour);
}

LBoxProps::~LBoxProps() = default;

void LBoxProps::accept() {
    if (ui.txtName.text().isEmpty())
        ui.txtName.setText(QStringLiteral("LayoutBox"));
    forms().get<LManager>().ui.tagbar->setDocumentHTML(fragment());
    unload();
}

void LBoxProps::pickColour(TextControl& field) {
    ui.ComDlg.showColor();
    field.setText(ui.ComDlg.color == 0 ? QString() : hexColour(ui.ComDlg.color));
}

// Only the option buttons decide which fields count.
QString LBoxProps::fragment() {
    const auto fields = [this](const BorderGroup& g) {
        return BorderFields{(ui.*g.type)->currentText(), (ui.*g.thickness).text(),
                            (ui.*g.colour).text()};
    };
    return layoutBox({.name = ui.txtName.text(),
                      .background = ui.txtBGColour.text(),
                      .individual = ui.radIndiBorder->isChecked(),
                      .all = fields(kGroups[0]),
                      .left = fields(kGroups[1]),
                      .right = fields(kGroups[2]),
                      .top = fields(kGroups[3]),
                      .bottom = fields(kGroups[4])});
}

} // namespace zt
