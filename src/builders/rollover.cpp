#include "rollover.h"

#include "imagepreview.h"
#include "rollovergen.h"

#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace zt {

namespace {

// A name goes into the page's script calls, where a blank would break it: every
// blank typed or pasted is taken out at once, the caret staying where it was.
void noBlanks(TextControl& field) {
    if (!field.text().contains(QLatin1Char(' ')))
        return;
    const int caret = field.selStart();
    field.setText(QString(field.text()).remove(QLatin1Char(' ')));
    field.setSelStart(caret);
}

} // namespace

rollover::rollover(FormRegistry& forms)
    : ElementDialog(forms, {.name = "rollover",
                            .caption = QStringLiteral("Insert Rollover Images : Zelvo"),
                            .shape = Dispatch::SourceOnly}),
      ui(*forms.services().pickers) {
    const QString missing = QStringLiteral("One or more required fields missing");
    build({
        // control, caption, default, place, limits, warning when empty
        {text("txtName", ui.txtName, ui.txtNameView), "Image &Name:", "", Place::Row, noBlanks,
         missing},
        {text("txtFirstImage", ui.txtFirstImage, ui.txtFirstImageView),
         "&First Image:",
         "",
         Place::Row,
         {},
         missing},
        {button("btnBrowseFirst", ui.btnBrowseFirst), "Browse...", "", Place::Beside},
        {text("txtSecondImage", ui.txtSecondImage, ui.txtSecondImageView),
         "&Second Image:",
         "",
         Place::Row,
         {},
         missing},
        {button("btnBrowseSecond", ui.btnBrowseSecond), "Browse...", "", Place::Beside},
        {text("txtLink", ui.txtLink, ui.txtLinkView), "&Hyperlink:"},
        {widget("imgPreviews", [this](QWidget* parent) { return makePreviews(parent); }), "", "",
         Place::Line},
        {button("insert", ui.insert), "&Insert", "", Place::Accept},
        {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
    });
    // Room for a whole path.
    ui.txtFirstImageView->setMinimumWidth(280);
    onClick(ui.btnBrowseFirst, [this] { browse(ui.txtFirstImage); });
    onClick(ui.btnBrowseSecond, [this] { browse(ui.txtSecondImage); });
}

rollover::~rollover() = default;

// The two pictures side by side: as the page shows it, and under the mouse.
QWidget* rollover::makePreviews(QWidget* parent) {
    auto* box = new QWidget(parent);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto document = [this] { return forms().get<Zelvo>().Tag; };
    ui.imgFirst = new ImagePreview(ui.txtFirstImage, document, QSize(150, 110), box);
    ui.imgSecond = new ImagePreview(ui.txtSecondImage, document, QSize(150, 110), box);
    grid->addWidget(new QLabel(QStringLiteral("As shown:"), box), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Under the mouse:"), box), 0, 1);
    grid->addWidget(ui.imgFirst, 1, 0);
    grid->addWidget(ui.imgSecond, 1, 1);
    return box;
}

QString rollover::fragment() {
    return rolloverPage(forms().get<Zelvo>().ui.area.text(),
                        {.name = ui.txtName.text(),
                         .firstImage = ui.txtFirstImage.text(),
                         .secondImage = ui.txtSecondImage.text(),
                         .link = ui.txtLink.text()});
}

// The picker keeps the file it gave last, so a cancel brings that one again.
void rollover::browse(TextControl& field) {
    ui.comdlg.showOpen();
    if (!ui.comdlg.fileName.isEmpty())
        field.setText(ui.comdlg.fileName);
}

} // namespace zt
