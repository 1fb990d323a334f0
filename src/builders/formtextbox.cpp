#include "formtextbox.h"

#include "colours.h"
#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/formregistry.h"
#include "platform/services.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

formTextbox::formTextbox(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formTextbox",
                            .caption = QStringLiteral("Insert Text Box : Zelvo"),
                            .helpPage = QStringLiteral("textbox.zhp"),
                            .shape = Dispatch::ThreeWay,
                            .floats = false}),
      ui(*forms.services().pickers) {
    const QStringList colours = namedColours() + QStringList{QStringLiteral("none")};
    build(
        ui.compOrEdit,
        {
            // control, caption, default, place
            {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
            {text("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Text:"},
            {text("txtMaxLen", ui.txtMaxLen, ui.txtMaxLenView), "&Max Length:"},
            {text("txtSize", ui.txtSize, ui.txtSizeView), "&Size:"},
            {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:"},
            {group("grpPassword"), "Convert To Password Field?", "", Place::Line},
            {option("radYes", ui.radYes), "&Yes", "", Place::InGroup},
            {option("radNo", ui.radNo), "N&o", "1", Place::InGroup},
            {check("chkReadOnly", ui.chkReadOnly), "&Read Only", "", Place::Line},
            {check("chkUseStyle", ui.chkUseStyle), "&Use Style Text Box", "", Place::Line},
            {group("grpStyle"), "Style", "", Place::Line},
            {combo("cmbcolour", ui.cmbcolour, colours), "&Colour:", "none", Place::InGroup},
            {button("btnColour", ui.btnColour), "...", "", Place::Beside},
            {combo("cmbbgcolour", ui.cmbbgcolour, colours), "&Background:", "none", Place::InGroup},
            {button("btnBGColour", ui.btnBGColour), "...", "", Place::Beside},
            {combo("listFont", ui.listFont, {}), "&Font:", "Arial", Place::InGroup},
            {combo("cmbFontSize", ui.cmbFontSize, fontSizes()), "Si&ze:", "14", Place::InGroup},
            {check("chkBold", ui.chkBold), "&Bold", "", Place::Beside},
            {check("chkItalics", ui.chkItalics), "&Italics", "", Place::Beside},
            {button("btnInsert", ui.btnInsert), "Insert", "", Place::Accept},
            {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
            {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
        });
    ui.btnColour->setFixedWidth(
        ui.btnColour->fontMetrics().horizontalAdvance(QStringLiteral("...")) * 3);
    ui.btnBGColour->setFixedWidth(ui.btnColour->width());
    chkUseStyle_Click();
    onClick(ui.chkUseStyle, [this] { chkUseStyle_Click(); });
    onClick(ui.btnColour, [this] { btnColour_Click(); });
    onClick(ui.btnBGColour, [this] { btnBGColour_Click(); });
}

formTextbox::~formTextbox() = default;

void formTextbox::load() {
    fillFontList(*ui.listFont, services().desktop->screenFonts());
    ElementDialog::load();
}

// The focus is never moved to the empty name, and the dialog closes after the
// warning all the same: what was entered is gone.
void formTextbox::accept() {
    if (warnedOfNoName(ui.txtName, *services().prompts)) {
        unload();
        return;
    }
    ElementDialog::accept();
}

QString formTextbox::fragment() {
    QString style;
    if (ui.chkUseStyle->isChecked())
        style = textboxStyle({.colour = ui.cmbcolour->currentText(),
                              .background = ui.cmbbgcolour->currentText(),
                              .font = ui.listFont->currentText(),
                              .fontSize = ui.cmbFontSize->currentText(),
                              .bold = ui.chkBold->isChecked(),
                              .italic = ui.chkItalics->isChecked()});
    return inputTag(
        {.type = ui.radYes->isChecked() ? QStringLiteral("password") : QStringLiteral("text"),
         .name = ui.txtName.text(),
         .value = ui.txtDefault.text(),
         .size = ui.txtSize.text(),
         .maxLength = ui.txtMaxLen.text(),
         .tabIndex = ui.txtTab.text(),
         .readOnly = ui.chkReadOnly->isChecked(),
         .style = style});
}

void formTextbox::chkUseStyle_Click() {
    enableAll({ui.cmbcolour, ui.btnColour, ui.cmbbgcolour, ui.btnBGColour, ui.listFont,
               ui.cmbFontSize, ui.chkBold, ui.chkItalics},
              ui.chkUseStyle->isChecked());
}

void formTextbox::btnColour_Click() {
    pickHexColour(ui.comdlg, *ui.cmbcolour);
}

void formTextbox::btnBGColour_Click() {
    pickHexColour(ui.comdlg, *ui.cmbbgcolour);
}

} // namespace zt
