#include "formtextarea.h"

#include "colours.h"
#include "fieldgen.h"
#include "fieldparts.h"

#include "platform/formregistry.h"
#include "platform/services.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLayout>
#include <QPushButton>

namespace zt {

formTextArea::formTextArea(FormRegistry& forms)
    : ElementDialog(forms, {.name = "formTextArea",
                            .caption = QStringLiteral("Insert Text Area : Zelvo"),
                            .helpPage = QStringLiteral("textarea.zhp"),
                            .shape = Dispatch::ThreeWay,
                            .console = ConsoleLanding::AtSelection}) {
    const QStringList colours = namedColours() + QStringList{QStringLiteral("none")};
    build(
        ui.compOrEdit,
        {
            // control, caption, default, place, limits
            {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
            {memo("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Text:", "",
             Place::Line},
            {text("txtWidth", ui.txtWidth, ui.txtWidthView), "&Width in number of characters:", "",
             Place::Row, numeric()},
            {text("txtLines", ui.txtLines, ui.txtLinesView), "Number of &lines:", "", Place::Row,
             numeric()},
            {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:", "", Place::Row, numeric()},
            {check("chkAdvanced", ui.chkAdvanced), "&Advanced / Style", "", Place::Line},
            {group("grpStyle"), "Style", "", Place::Line},
            {check("chkUseStyleTextarea", ui.chkUseStyleTextarea), "&Use Style", "",
             Place::InGroup},
            {combo("cmbcolour", ui.cmbcolour, colours), "&Colour:", "none", Place::InGroup},
            {combo("cmbbgcolour", ui.cmbbgcolour, colours), "&Background:", "none", Place::InGroup},
            {combo("listFont", ui.listFont, {}), "&Font:", "", Place::InGroup},
            {check("chkBorder", ui.chkBorder), "&Solid Border", "", Place::Beside},
            {button("btnInsert", ui.btnInsert), "Insert", "", Place::Accept},
            {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
            {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
        });
    chkUseStyleTextarea_Click();
    chkAdvanced_Click();
    onClick(ui.chkAdvanced, [this] { chkAdvanced_Click(); });
    onClick(ui.chkUseStyleTextarea, [this] { chkUseStyleTextarea_Click(); });
}

formTextArea::~formTextArea() = default;

void formTextArea::load() {
    fillFontList(*ui.listFont, services().desktop->screenFonts());
    ElementDialog::load();
}

// The warning moves no focus, and the dialog stays open with what was entered.
void formTextArea::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

QString formTextArea::fragment() {
    return textAreaTag({.name = ui.txtName.text(),
                        .text = ui.txtDefault.text(),
                        .cols = ui.txtWidth.text(),
                        .rows = ui.txtLines.text(),
                        .tabIndex = ui.txtTab.text(),
                        .useStyle = ui.chkUseStyleTextarea->isChecked(),
                        .colour = ui.cmbcolour->currentText(),
                        .background = ui.cmbbgcolour->currentText(),
                        .border = ui.chkBorder->isChecked(),
                        .font = ui.listFont->currentText(),
                        .forConsole = ui.compOrEdit.text() == caller::kConsole});
}

QGroupBox* formTextArea::styleGroup() const {
    return window()->findChild<QGroupBox*>(QStringLiteral("grpStyle"));
}

// Advanced only shows or hides the style group; what it holds counts either way.
void formTextArea::chkAdvanced_Click() {
    styleGroup()->setVisible(ui.chkAdvanced->isChecked());
    // The default text's box would keep the room the group gave up; the window
    // shrinks back instead.
    window()->layout()->activate();
    window()->resize(window()->width(), window()->sizeHint().height());
}

void formTextArea::chkUseStyleTextarea_Click() {
    enableAll({ui.cmbcolour, ui.cmbbgcolour, ui.listFont, ui.chkBorder},
              ui.chkUseStyleTextarea->isChecked());
}

} // namespace zt
