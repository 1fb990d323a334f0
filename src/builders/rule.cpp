#include "rule.h"

#include "checks.h"
#include "colours.h"
#include "platform/dialogparts.h"
#include "protocol.h"
#include "rulegen.h"
#include "table.h"

#include "shell/modapi.h"
#include "shell/optfunctions.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

const QString kSection = QStringLiteral("HRule");

} // namespace

rule::rule(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("rule"), QStringLiteral("Insert Horizontal Rule : Zelvo"));
    setWindow(window);

    ui.txtWidthView = makeLine(window, "txtWidth", ui.txtWidth);
    ui.chkPercentage = makeCheck(window, "chkPercentage", QStringLiteral("Percentage"));
    ui.txtSizeView = makeLine(window, "txtSize", ui.txtSize);
    ui.chkShade = makeCheck(window, "chkShade", QStringLiteral("No Shade"));
    ui.cmbAlign =
        makeCombo(window, "cmbAlign",
                  {QStringLiteral("Left"), QStringLiteral("Center"), QStringLiteral("Right")});
    ui.cmbAlign->setCurrentText(QStringLiteral("Center"));
    ui.txtColourView = makeLine(window, "txtColour", ui.txtColour);
    ui.btnShowColours = makeButton(window, "btnShowColours", QStringLiteral("Colours..."));
    ui.chkRemember = makeCheck(window, "chkRemember", QStringLiteral("Remember Settings"));
    ui.OKButton = makeButton(window, "OKButton", QStringLiteral("OK"));
    ui.CancelButton = makeButton(window, "CancelButton", QStringLiteral("Cancel"));
    ui.btnHelp = makeButton(window, "btnHelp", QStringLiteral("Help"));

    // Captions, fields, and what goes with each field, in three columns.
    auto* fields = new QGridLayout;
    const auto addRow = [&](int row, const QString& caption, QWidget* field, QWidget* beside) {
        fields->addWidget(makeLabel(window, caption, field), row, 0);
        fields->addWidget(field, row, 1);
        if (beside)
            fields->addWidget(beside, row, 2);
    };
    addRow(0, QStringLiteral("&Width:"), ui.txtWidthView, ui.chkPercentage);
    addRow(1, QStringLiteral("&Size:"), ui.txtSizeView, ui.chkShade);
    addRow(2, QStringLiteral("&Alignment:"), ui.cmbAlign, nullptr);
    addRow(3, QStringLiteral("&Colour:"), ui.txtColourView, ui.btnShowColours);
    fields->setColumnStretch(1, 1);

    auto* layout = new QVBoxLayout(window);
    layout->addLayout(fields);
    layout->addSpacing(6);
    layout->addWidget(ui.chkRemember);
    layout->addStretch(1);
    layout->addWidget(makeButtonRow(window, ui.OKButton, ui.CancelButton, ui.btnHelp));
    layout->setSizeConstraint(QLayout::SetFixedSize);

    ui.txtWidth.addChangeHandler([this] { txtWidth_Change(); });
    ui.txtSize.addChangeHandler([this] { txtSize_Change(); });
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
    onClick(ui.btnShowColours, [this] { btnShowColours_Click(); });
}

rule::~rule() = default;

std::vector<Remembered> rule::rememberedFields() {
    return {remembered(QStringLiteral("Remember"), QStringLiteral("0"), ui.chkRemember),
            remembered(QStringLiteral("NoShade"), QStringLiteral("0"), ui.chkShade),
            remembered(QStringLiteral("Alignment"), QStringLiteral("Center"), ui.cmbAlign),
            remembered(QStringLiteral("Colour"), QString(), ui.txtColour),
            remembered(QStringLiteral("Size"), QString(), ui.txtSize),
            remembered(QStringLiteral("Percentage"), QStringLiteral("0"), ui.chkPercentage),
            remembered(QStringLiteral("Width"), QString(), ui.txtWidth)};
}

void rule::load() {
    SettingsSection section(*services().settings, kSection);
    // Restored only for a "Remember" of -1, which a ticked box never stores: the
    // dialog opens with its design defaults, whatever was remembered.
    if (vb::CDbl(section.get(QStringLiteral("Remember"), QStringLiteral("0"))) == -1)
        section.restore(rememberedFields());
    stayOnTop(*this);
}

void rule::OKButton_Click() {
    const RuleValues values{.width = ui.txtWidth.text(),
                            .percentage = checkValue(ui.chkPercentage) == 1,
                            .size = ui.txtSize.text(),
                            .noShade = checkValue(ui.chkShade) == 1,
                            .align = ui.cmbAlign->currentText(),
                            .colour = ui.txtColour.text()};
    deliver(forms(), Dispatch::EditFirst, ui.compOrEdit.text(), ruleTag(values));

    SettingsSection section(*services().settings, kSection);
    if (checkValue(ui.chkRemember) == 1) {
        section.save(rememberedFields());
    } else {
        // With the box clear the value comes from the table dialog's box, which
        // loads that dialog, so its own remembered choice decides.
        section.save(QStringLiteral("Remember"),
                     QString::number(checkValue(forms().get<table>().ui.chkRemember)));
    }
    unload();
}

void rule::CancelButton_Click() {
    unload();
}

void rule::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("hr.zhp"));
}

void rule::btnShowColours_Click() {
    pickHexColour(ui.comdlg, *ui.txtColourView);
}

void rule::txtWidth_Change() {
    checkNumeric(ui.txtWidth, *services().prompts);
}

void rule::txtSize_Change() {
    checkNumeric(ui.txtSize, *services().prompts);
}

} // namespace zt
