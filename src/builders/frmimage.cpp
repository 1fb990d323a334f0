#include "frmimage.h"

#include "imagegen.h"
#include "imagepreview.h"

#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/prompts.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace zt {

frmImage::frmImage(FormRegistry& forms)
    : ElementDialog(forms, {.name = "frmImage",
                            .caption = QStringLiteral("Image : Zelvo"),
                            .helpPage = QStringLiteral("image.zhp"),
                            .shape = Dispatch::EditOrConsole}),
      ui(*forms.services().pickers) {
    build(
        ui.compOrEdit,
        {
            // control, caption, default, place, limits, warning when empty
            {text("txtSource", ui.txtSource, ui.txtSourceView),
             "&Source:",
             "",
             Place::Row,
             {},
             "No image was selected"},
            {button("btnSource", ui.btnSource), "&Browse...", "", Place::Beside},
            {text("txtAlt", ui.txtAlt, ui.txtAltView), "Alternate &Text:"},
            {check("chkDimensions", ui.chkDimensions), "Enter &Dimensions", "", Place::Line},
            {text("txtHeight", ui.txtHeight, ui.txtHeightView), "&Height:", "", Place::Row,
             numeric()},
            {check("chkHPercentage", ui.chkHPercentage), "Percent", "", Place::Beside},
            {text("txtWidth", ui.txtWidth, ui.txtWidthView), "&Width:", "", Place::Row, numeric()},
            {check("chkWPercentage", ui.chkWPercentage), "Percent", "", Place::Beside},
            {text("txtHSpace", ui.txtHSpace, ui.txtHSpaceView), "Hori&zontal Space:", "0",
             Place::Row, numeric()},
            {spinButtons("updHSpace", ui.updHSpace, ui.txtHSpace), "", "", Place::Beside},
            {text("txtVSpace", ui.txtVSpace, ui.txtVSpaceView), "&Vertical Space:", "0", Place::Row,
             numeric()},
            {spinButtons("updVSpace", ui.updVSpace, ui.txtVSpace), "", "", Place::Beside},
            {text("txtBorder", ui.txtBorder, ui.txtBorderView), "B&order:", "0"},
            {spinButtons("updBorder", ui.updBorder, ui.txtBorder), "", "", Place::Beside},
            {combo("cmbAlign", ui.cmbAlign,
                   {"Left", "Right", "Top", "TextTop", "Middle", "AbsMiddle", "Baseline", "Bottom",
                    "AbsBottom", "Center"}),
             "&Alignment:", "Left"},
            {widget("imgPreview",
                    [this](QWidget* parent) {
                        ui.imgPreview = new ImagePreview(
                            ui.txtSource, [this] { return this->forms().get<Zelvo>().Tag; },
                            QSize(240, 160), parent);
                        return ui.imgPreview;
                    }),
             "", "", Place::Line},
            {button("btnInsert", ui.btnInsert), "&Insert", "", Place::Accept},
            {button("btnClose", ui.btnClose), "Close", "", Place::Cancel},
            {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
        });
    // Room for a whole path.
    ui.txtSourceView->setMinimumWidth(280);
    // The border changes only by its spin buttons.
    ui.txtBorderView->setReadOnly(true);
    onClick(ui.btnSource, [this] { btnSource_Click(); });
    onClick(ui.chkDimensions, [this] { chkDimensions_Click(); });
    chkDimensions_Click();
}

frmImage::~frmImage() = default;

Field frmImage::spinButtons(const char* name, UpDown& arrows, TextControl& field) {
    return upDown(name, arrows, [this, &field](int step) { spin(field, step); });
}

QString frmImage::fragment() {
    // The spacing fields take no part in the tag, yet they are read as numbers, so
    // an empty one fails here.
    (void)vb::CDbl(ui.txtHSpace.text());
    (void)vb::CDbl(ui.txtVSpace.text());
    return imageTag({.source = ui.txtSource.text(),
                     .alt = ui.txtAlt.text(),
                     .dimensions = checkValue(ui.chkDimensions) == 1,
                     .height = ui.txtHeight.text(),
                     .heightPercent = checkValue(ui.chkHPercentage) == 1,
                     .width = ui.txtWidth.text(),
                     .widthPercent = checkValue(ui.chkWPercentage) == 1,
                     .align = ui.cmbAlign->currentText(),
                     .border = ui.txtBorder.text()});
}

// The tag goes to the source view only when the source view opened this very
// dialog. The dialog that comes back after an insertion is a fresh one that no
// caller was written into, so what it inserts goes to the console's text, loaded
// hidden when the console is not open.
void frmImage::accept() {
    if (!warnedOfMissing() && !warnedOfDimensions()) {
        deliver(fragment());
        unload();
    }
    frmImage& next = forms().get<frmImage>();
    next.ui.comdlg.fileName.clear();
    next.show();
}

bool frmImage::warnedOfDimensions() {
    if (checkValue(ui.chkDimensions) != 1 ||
        (!ui.txtHeight.text().isEmpty() && !ui.txtWidth.text().isEmpty()))
        return false;
    services().prompts->msgBox(QStringLiteral("Height or Width not specified"), vbExclamation,
                               QStringLiteral("Assistant: Zelvo"));
    return true;
}

void frmImage::btnSource_Click() {
    ui.comdlg.cancelError = true;
    ui.comdlg.filter = QStringLiteral("JPEG Files (*.jpg)|*.jpg|GIF Files (*.gif)|*.gif|PNG Files "
                                      "(*.png)|*.png|All Files (*.*)|*.*");
    // Cancel ends the command with nothing changed.
    orEndSilently([this] {
        ui.comdlg.showOpen();
        ui.txtSource.setText(ui.comdlg.fileName);
        ui.comdlg.fileName.clear();
    });
}

void frmImage::chkDimensions_Click() {
    const bool on = checkValue(ui.chkDimensions) == 1;
    for (QWidget* field : std::initializer_list<QWidget*>{ui.txtHeightView, ui.txtWidthView,
                                                          ui.chkHPercentage, ui.chkWPercentage})
        field->setEnabled(on);
}

void frmImage::spin(TextControl& field, int step) {
    if (field.text().isEmpty())
        field.setText(QStringLiteral("0"));
    stepNumber(field, step);
}

} // namespace zt
