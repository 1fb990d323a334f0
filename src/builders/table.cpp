#include "table.h"

#include "colours.h"
#include "tablegen.h"

#include "platform/eventwatcher.h"
#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

StyleChoice choiceOf(const QComboBox* list) {
    return {list->currentIndex(), list->currentText()};
}

// The text of a field, set to "0" in the field itself when it is empty.
QString zeroWhenEmpty(TextControl& field) {
    if (field.text().isEmpty())
        field.setText(QStringLiteral("0"));
    return field.text();
}

} // namespace

table::table(FormRegistry& forms)
    : ElementDialog(forms, {.name = "table",
                            .caption = QStringLiteral("Insert Table : Zelvo"),
                            .helpPage = QStringLiteral("tb01.zhp"),
                            .rememberIn = QStringLiteral("Table"),
                            // Unlike most dialogs this one does not float above the others.
                            .floats = false}),
      ui(*forms.services().pickers) {
    build(
        ui.compOrEdit,
        {
            // control, caption, default, place, limits
            {text("txtrow", ui.txtrow, ui.txtrowView), "&Rows:", "2", Place::Row, numeric()},
            {text("txtcol", ui.txtcol, ui.txtcolView), "C&olumns:", "2", Place::Row, numeric()},
            {text("txtcelpad", ui.txtcelpad, ui.txtcelpadView), "Cell &Padding:", "0", Place::Row,
             numeric()},
            {text("txtcelspac", ui.txtcelspac, ui.txtcelspacView), "Cell &Spacing:", "0",
             Place::Row, numeric()},
            {text("txtBorder", ui.txtBorder, ui.txtBorderView), "&Border:", "1", Place::Row,
             numeric()},
            {combo("cmbAlign", ui.cmbAlign, {"Default", "Left", "Centre", "Right"}),
             "&Alignment:", "Default"},
            {check("chkwidth", ui.chkwidth), "Specify &Width", "1", Place::Line},
            {text("txtWidth", ui.txtWidth, ui.txtWidthView), "Width:", "100", Place::Row,
             numeric()},
            {option("radpixels", ui.radpixels), "Pixels", "", Place::Beside},
            {option("radpercentage", ui.radpercentage), "Percentage", "1", Place::Beside},
            {text("txtColour", ui.txtColour, ui.txtColourView), "&Colour:"},
            {button("btnShowColours", ui.btnShowColours), "Colours...", "", Place::Beside},
            {check("chkEmptyTable", ui.chkEmptyTable), "Create &Empty Table", "", Place::Line},
            {check("chkRemember", ui.chkRemember), "Remember Settings", "", Place::Line},
            {check("chkAdvanced", ui.chkAdvanced), "Advanced", "", Place::Line},
            {group("frmAdvanced"), "Table Styles"},
            {dropList("cmbBorderCollapse", ui.cmbBorderCollapse, {"collapse", "separate"}),
             "Border Collapse:", "", Place::InGroup},
            {dropList("cmbCaptionSide", ui.cmbCaptionSide, {"top", "bottom", "left", "right"}),
             "Caption Side:", "", Place::InGroup},
            {dropList("cmbEmptyCells", ui.cmbEmptyCells, {"show", "hide"}), "Empty Cells:", "",
             Place::InGroup},
            {dropList("cmbTableLayout", ui.cmbTableLayout, {"auto", "fixed"}), "Table Layout:", "",
             Place::InGroup},
            {text("txtSpac1", ui.txtSpac1, ui.txtSpac1View), "Border Spacing:", "", Place::InGroup},
            {text("txtSpac2", ui.txtSpac2, ui.txtSpac2View), "", "", Place::Beside},
            {text("txtCaption", ui.txtCaption, ui.txtCaptionView), "Caption:", "", Place::InGroup},
            {widget("Status",
                    [this](QWidget* parent) {
                        ui.Status = new QLabel(parent);
                        ui.Status->setFrameShape(QFrame::StyledPanel);
                        ui.Status->setWordWrap(true);
                        return ui.Status;
                    }),
             "", "", Place::Line},
            {button("OKButton", ui.OKButton), "Create Table", "", Place::Accept},
            {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
            {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
        });
    ui.frmAdvanced = window()->findChild<QGroupBox*>(QStringLiteral("frmAdvanced"));
    ui.frmAdvanced->setVisible(false);
    addHints();

    // Restoring the box changes it as a click does.
    QObject::connect(ui.chkwidth, &QCheckBox::stateChanged, ui.chkwidth,
                     guarded([this](int) { chkwidth_Click(); }));
    onClick(ui.chkAdvanced, [this] { chkAdvanced_Click(); });
    onClick(ui.btnShowColours, [this] { btnShowColours_Click(); });
}

table::~table() = default;

// The captions of the advanced group explain themselves on the status line, and the
// text stays until another caption replaces it.
void table::addHints() {
    const struct {
        QLabel*& label;
        const char* name;
        QWidget* field;
        QString hint;
    } hints[] = {
        {ui.lblBorderCollapse, "lblBorderCollapse", ui.cmbBorderCollapse,
         QStringLiteral("Sets whether the table borders are collapsed into a single border or "
                        "detached as in standard HTML")},
        {ui.lblBorderSpacing, "lblBorderSpacing", ui.txtSpac1View,
         QStringLiteral("Sets the distance that separates cell borders (only for the \"separated "
                        "borders\" model)")},
        {ui.lblCaptionSide, "lblCaptionSide", ui.cmbCaptionSide,
         QStringLiteral("Sets the position of the table caption")},
        {ui.lblEmptyCells, "lblEmptyCells", ui.cmbEmptyCells,
         QStringLiteral("Sets whether or not to show empty cells in a table (only for the "
                        "\"separated borders\" model) ")},
        {ui.lblTableLayout, "lblTableLayout", ui.cmbTableLayout,
         QStringLiteral("Sets the algorithm used to display the table cells, rows, and columns")},
    };
    for (const auto& hint : hints) {
        for (QLabel* label : ui.frmAdvanced->findChildren<QLabel*>()) {
            if (label->buddy() != hint.field)
                continue;
            hint.label = label;
            label->setObjectName(QString::fromLatin1(hint.name));
            new EventWatcher(label, QEvent::MouseMove,
                             [this, text = hint.hint] { showHint(text); });
        }
    }
}

QString table::fragment() {
    const QString cellPadding = zeroWhenEmpty(ui.txtcelpad);
    const QString cellSpacing = zeroWhenEmpty(ui.txtcelspac);
    const QString border = zeroWhenEmpty(ui.txtBorder);
    const QString width = zeroWhenEmpty(ui.txtWidth);
    return tableMarkup({.rows = ui.txtrow.text(),
                        .cols = ui.txtcol.text(),
                        .cellPadding = cellPadding,
                        .cellSpacing = cellSpacing,
                        .border = border,
                        .align = ui.cmbAlign->currentText(),
                        .specifyWidth = checkValue(ui.chkwidth) == 1,
                        .width = width,
                        .pixels = ui.radpixels->isChecked(),
                        .colour = ui.txtColour.text(),
                        .emptyTable = checkValue(ui.chkEmptyTable) == 1,
                        .borderCollapse = choiceOf(ui.cmbBorderCollapse),
                        .captionSide = choiceOf(ui.cmbCaptionSide),
                        .emptyCells = choiceOf(ui.cmbEmptyCells),
                        .tableLayout = choiceOf(ui.cmbTableLayout),
                        .spacing1 = ui.txtSpac1.text(),
                        .spacing2 = ui.txtSpac2.text(),
                        .caption = ui.txtCaption.text()});
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

// Hiding the group takes nothing back: its choices stay in force.
void table::chkAdvanced_Click() {
    ui.frmAdvanced->setVisible(ui.chkAdvanced->isChecked());
}

void table::btnShowColours_Click() {
    pickHexColour(ui.comdlg, *ui.txtColourView);
}

void table::showHint(const QString& text) {
    ui.Status->setText(text);
}

} // namespace zt
