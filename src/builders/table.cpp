#include "table.h"

#include "checks.h"
#include "platform/dialogparts.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zt {

namespace {

const QString kSection = QStringLiteral("Table");

} // namespace

table::table(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("table"), QStringLiteral("Insert Table : Zelvo"));
    setWindow(window);

    ui.txtrowView = makeLine(window, "txtrow", ui.txtrow);
    ui.txtcolView = makeLine(window, "txtcol", ui.txtcol);
    ui.txtcelpadView = makeLine(window, "txtcelpad", ui.txtcelpad);
    ui.txtcelspacView = makeLine(window, "txtcelspac", ui.txtcelspac);
    ui.txtBorderView = makeLine(window, "txtBorder", ui.txtBorder);
    ui.cmbAlign = makeCombo(window, "cmbAlign",
                            {QStringLiteral("Default"), QStringLiteral("Left"),
                             QStringLiteral("Centre"), QStringLiteral("Right")});
    ui.chkwidth = makeCheck(window, "chkwidth", QStringLiteral("Specify Width"));
    ui.txtWidthView = makeLine(window, "txtWidth", ui.txtWidth);
    ui.radpixels = makeOption(window, "radpixels", QStringLiteral("Pixels"));
    ui.radpercentage = makeOption(window, "radpercentage", QStringLiteral("Percentage"));
    ui.txtColourView = makeLine(window, "txtColour", ui.txtColour);
    ui.chkEmptyTable = makeCheck(window, "chkEmptyTable", QStringLiteral("Create Empty Table"));
    ui.chkRemember = makeCheck(window, "chkRemember", QStringLiteral("Remember Settings"));

    // Design defaults.
    ui.txtrow.setText(QStringLiteral("2"));
    ui.txtcol.setText(QStringLiteral("2"));
    ui.txtcelpad.setText(QStringLiteral("0"));
    ui.txtcelspac.setText(QStringLiteral("0"));
    ui.txtBorder.setText(QStringLiteral("1"));
    ui.cmbAlign->setCurrentText(QStringLiteral("Default"));
    ui.chkwidth->setChecked(true);
    ui.txtWidth.setText(QStringLiteral("100"));
    ui.radpercentage->setChecked(true);

    auto* width = new QHBoxLayout;
    width->addWidget(ui.txtWidthView, 1);
    width->addWidget(ui.radpixels);
    width->addWidget(ui.radpercentage);
    auto* fields = new QFormLayout;
    fields->addRow(QStringLiteral("Rows:"), ui.txtrowView);
    fields->addRow(QStringLiteral("Columns:"), ui.txtcolView);
    fields->addRow(QStringLiteral("Cell Padding:"), ui.txtcelpadView);
    fields->addRow(QStringLiteral("Cell Spacing:"), ui.txtcelspacView);
    fields->addRow(QStringLiteral("Border:"), ui.txtBorderView);
    fields->addRow(QStringLiteral("Alignment:"), ui.cmbAlign);
    fields->addRow(ui.chkwidth, width);
    fields->addRow(QStringLiteral("Colour:"), ui.txtColourView);
    auto* layout = new QVBoxLayout(window);
    layout->addLayout(fields);
    layout->addWidget(ui.chkEmptyTable);
    layout->addWidget(ui.chkRemember);

    for (TextControl* field :
         {&ui.txtrow, &ui.txtcol, &ui.txtcelpad, &ui.txtcelspac, &ui.txtBorder, &ui.txtWidth})
        field->addChangeHandler([this, field] { checkNumeric(*field, *services().prompts); });
    // Restoring the box changes it as a click does.
    QObject::connect(ui.chkwidth, &QCheckBox::stateChanged, ui.chkwidth,
                     guarded([this](int) { chkwidth_Click(); }));
}

table::~table() = default;

std::vector<Remembered> table::rememberedFields() {
    return {remembered(QStringLiteral("Rows"), QStringLiteral("2"), ui.txtrow),
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

void table::load() {
    // Unlike most dialogs this one does not float above the others.
    SettingsSection section(*services().settings, kSection);
    if (asBoolean(section.get(QStringLiteral("Remember"), QStringLiteral("0")))) {
        section.restore(rememberedFields());
        ui.chkRemember->setChecked(true);
    }
}

void table::chkwidth_Click() {
    const bool on = ui.chkwidth->isChecked();
    ui.txtWidthView->setEnabled(on);
    ui.radpixels->setEnabled(on);
    ui.radpercentage->setEnabled(on);
}

} // namespace zt
