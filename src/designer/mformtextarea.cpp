#include "mformtextarea.h"

#include "builders/fieldgen.h"

#include "platform/formregistry.h"
#include "platform/geometry.h"
#include "platform/services.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLayout>

#include <algorithm>
#include <iterator>

namespace zt {

MformTextArea::MformTextArea(FormRegistry& forms)
    : ElementDialog(forms,
                    designerField("MformTextArea", QStringLiteral("Insert Text Area")).setup),
      ui(*forms.services().pickers) {
    Controls rows{
        // control, caption, default, place
        {text("txtName", ui.txtName, ui.txtNameView), "&Name:"},
        {text("txtWidth", ui.txtWidth, ui.txtWidthView), "&Width in number of characters:"},
        {text("txtLines", ui.txtLines, ui.txtLinesView), "Number of &lines:"},
        {text("txtTab", ui.txtTab, ui.txtTabView), "&Tab Index:"},
        {memo("txtDefault", ui.txtDefault, ui.txtDefaultView), "&Default Text:", "", Place::Line},
        {check("chkAdvanced", ui.chkAdvanced), "&Advanced / Style", "", Place::Line},
    };
    std::ranges::move(ui.rows("&Use Style Text Area", ""), std::back_inserter(rows));
    rows.push_back({check("chkBorder", ui.chkBorder), "Solid Bor&der", "", Place::Beside});
    addFoot(rows, designerField("MformTextArea", {}), ui.btnInsert, ui.CancelButton, ui.btnHelp);
    build(rows);
    ui.wire();
    chkAdvanced_Click();
    onClick(ui.chkAdvanced, [this] { chkAdvanced_Click(); });
    onClick(ui.chkUseStyle, [this] { ui.chkBorder->setEnabled(ui.chkUseStyle->isChecked()); });
    ui.chkBorder->setEnabled(false);
}

MformTextArea::~MformTextArea() = default;

void MformTextArea::load() {
    fillFontList(*ui.listFont, services().desktop->screenFonts());
    ElementDialog::load();
}

void MformTextArea::accept() {
    if (!warnedOfNoName(ui.txtName, *services().prompts))
        ElementDialog::accept();
}

// The style panel lies below the window's short height: Advanced only grows the
// window over it, and what the panel holds counts either way.
void MformTextArea::chkAdvanced_Click() {
    const bool shown = ui.chkAdvanced->isChecked();
    ui.chkUseStyle->setVisible(shown);
    window()->findChild<QGroupBox*>(QStringLiteral("grpStyle"))->setVisible(shown);
    window()->layout()->activate();
    window()->resize(window()->width(),
                     std::max(twips(shown ? 5760 : 3240), window()->sizeHint().height()));
}

QString MformTextArea::fragment() {
    // The border is read and made into its text, which the style then leaves out: the
    // box has never had an effect on the field.
    [[maybe_unused]] const QString border =
        ui.chkBorder->isChecked() ? QStringLiteral("border style:solid;") : QString();
    return textAreaTag({.name = ui.txtName.text(),
                        .text = ui.txtDefault.text(),
                        .cols = ui.txtWidth.text(),
                        .rows = ui.txtLines.text(),
                        .tabIndex = ui.txtTab.text(),
                        .style = ui.style(QStringLiteral("background"))});
}

} // namespace zt
