#include "fieldparts.h"

#include "colours.h"
#include "fieldgen.h"

#include "shell/document.h"

#include "platform/prompts.h"
#include "platform/textcontrol.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QWidget>

namespace zt {

bool warnedOfNoName(const TextControl& txtName, Prompts& prompts) {
    if (!txtName.text().isEmpty())
        return false;
    prompts.msgBox(QStringLiteral("A valid name was not found"), vbExclamation,
                   document::kAssistant);
    return true;
}

// Filling rows into an editable combo puts the first row into its text; the text the
// dialog opens with is the caller's to set.
void fillFontList(QComboBox& listFont, const QStringList& screenFonts) {
    const QString typed = listFont.currentText();
    listFont.addItems(screenFonts.mid(1));
    listFont.setEditText(typed);
}

const QStringList& fontSizes() {
    static const QStringList sizes =
        QStringLiteral("6 7 8 9 10 11 12 14 16 18 20 22 24 26 28 36 48 72").split(u' ');
    return sizes;
}

void enableAll(std::initializer_list<QWidget*> widgets, bool enabled) {
    for (QWidget* widget : widgets)
        widget->setEnabled(enabled);
}

FieldVariant designerField(const char* name, const QString& caption, bool cancel) {
    return {.setup = {.name = name, .caption = caption, .shape = Dispatch::DesignerStrip},
            .cancel = cancel,
            .help = false,
            .checksNumbers = false};
}

void addFoot(Controls& rows, const FieldVariant& variant, QPushButton*& btnInsert,
             QPushButton*& CancelButton, QPushButton*& btnHelp) {
    rows.push_back({button("btnInsert", btnInsert), "Insert", "", Place::Accept});
    if (variant.cancel)
        rows.push_back({button("CancelButton", CancelButton), "Cancel", "", Place::Cancel});
    if (variant.help)
        rows.push_back({button("btnHelp", btnHelp), "Help", "", Place::Help});
}

Controls StylePanel::rows(const char* useStyleCaption, const char* font) {
    const QStringList colours = namedColours() + QStringList{QStringLiteral("none")};
    return {
        // control, caption, default, place
        {check("chkUseStyle", chkUseStyle), useStyleCaption, "", Place::Line},
        {group("grpStyle"), "Style", "", Place::Line},
        {combo("cmbcolour", cmbcolour, colours), "&Colour:", "none", Place::InGroup},
        {button("btnColour", btnColour), "...", "", Place::Beside},
        {combo("cmbbgcolour", cmbbgcolour, colours), "&Background:", "none", Place::InGroup},
        {button("btnBGColour", btnBGColour), "...", "", Place::Beside},
        {combo("listFont", listFont, {}), "&Font:", font, Place::InGroup},
        {combo("cmbFontSize", cmbFontSize, fontSizes()), "Si&ze:", "14", Place::InGroup},
        {check("chkBold", chkBold), "&Bold", "", Place::Beside},
        {check("chkItalics", chkItalics), "&Italics", "", Place::Beside},
    };
}

void StylePanel::wire() {
    btnColour->setFixedWidth(btnColour->fontMetrics().horizontalAdvance(QStringLiteral("...")) * 3);
    btnBGColour->setFixedWidth(btnColour->width());
    chkUseStyle_Click();
    onClick(chkUseStyle, [this] { chkUseStyle_Click(); });
    onClick(btnColour, [this] { btnColour_Click(); });
    onClick(btnBGColour, [this] { btnBGColour_Click(); });
}

void StylePanel::chkUseStyle_Click() {
    enableAll({cmbcolour, btnColour, cmbbgcolour, btnBGColour, listFont, cmbFontSize, chkBold,
               chkItalics},
              chkUseStyle->isChecked());
}

void StylePanel::btnColour_Click() {
    pickHexColour(comdlg, *cmbcolour);
}

void StylePanel::btnBGColour_Click() {
    pickHexColour(comdlg, *cmbbgcolour);
}

QString StylePanel::style(const QString& backgroundProperty) const {
    if (!chkUseStyle->isChecked())
        return {};
    return textboxStyle({.colour = cmbcolour->currentText(),
                         .background = cmbbgcolour->currentText(),
                         .backgroundProperty = backgroundProperty,
                         .font = listFont->currentText(),
                         .fontSize = cmbFontSize->currentText(),
                         .bold = chkBold->isChecked(),
                         .italic = chkItalics->isChecked()});
}

} // namespace zt
