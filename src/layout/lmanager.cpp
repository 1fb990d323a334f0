#include "lmanager.h"

#include "samples.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/services.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace zt {

namespace {

using L = LManager;
using U = LManager::Ui;

const QSize kThumbnail(92, 78);

// The command buttons in the column beside the work area; Add New Box stands over
// the strip it fills, the others under it.
const struct {
    QPushButton* U::*button;
    const char* name;
    const char* caption;
    void (L::*handler)();
} kButtons[] = {
    {&U::btnAddNew, "btnAddNew", "Add New Box", &L::btnAddNew_Click},
    {&U::btnEditHTML, "btnEditHTML", "Edit HTML", &L::btnEditHTML_Click},
    {&U::btnUseLayout, "btnUseLayout", "Use Layout", &L::btnUseLayout_Click},
    {&U::btnSaveLayout, "btnSaveLayout", "Save Layout", &L::btnSaveLayout_Click},
    {&U::btnLoadLayout, "btnLoadLayout", "Load Layout", &L::btnLoadLayout_Click},
    {&U::btnHelp, "btnHelp", "Help", &L::btnHelp_Click},
};

} // namespace

LManager::LManager(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window = new QWidget;
    window->setObjectName(QStringLiteral("LManager"));
    setWindow(window);
    setCaption(QStringLiteral("Layout Manager: Zelvo Tessara"));
    window->resize(980, 780);

    TextControl* samples[] = {&ui.type1, &ui.type2, &ui.type3, &ui.type4};
    for (int n = 1; n <= 4; ++n)
        samples[n - 1]->setText(sampleLayout(n));

    auto* page = new QVBoxLayout(window);
    auto* thumbnails = new QHBoxLayout;
    page->addLayout(thumbnails);
    thumbnails->addWidget(new QLabel(QStringLiteral("Start from a sample layout:"), window));
    for (int i = 0; i < 5; ++i) {
        QToolButton*& picture = ui.PicType[i];
        picture = new QToolButton(window);
        picture->setObjectName(QStringLiteral("PicType%1").arg(i));
        picture->setIcon(layoutThumbnail(i == 0 ? QString() : samples[i - 1]->text(), kThumbnail));
        picture->setIconSize(kThumbnail);
        picture->setAutoRaise(true);
        onClick(picture, [this, i] { PicType_Click(i); });
        thumbnails->addWidget(picture);
    }
    ui.PicType[0]->setToolTip(QStringLiteral("Blank"));
    thumbnails->addStretch(1);

    auto* columns = new QHBoxLayout;
    page->addLayout(columns, 1);
    auto* side = new QVBoxLayout;
    columns->addLayout(side);
    for (const auto& row : kButtons) {
        QPushButton* button = makeButton(window, row.name, QString::fromLatin1(row.caption));
        ui.*row.button = button;
        onClick(button, [this, handler = row.handler] { (this->*handler)(); });
        side->addWidget(button);
        if (row.button == &U::btnAddNew) {
            auto* hint = new QLabel(QStringLiteral("New box: drag it into the layout"), window);
            hint->setWordWrap(true);
            side->addWidget(hint);
            ui.tagbar = services().makeEngine(window);
            if (QWidget* view = ui.tagbar->widget()) {
                view->setFixedSize(170, 110);
                side->addWidget(view);
            }
            side->addSpacing(16);
        }
    }
    side->addStretch(1);

    ui.result = services().makeEngine(window);
    if (QWidget* view = ui.result->widget())
        columns->addWidget(view, 1);
    ui.result->setDesignSurface(true);
    ui.result->acceptDropsFrom(*ui.tagbar);
}

LManager::~LManager() = default;

void LManager::PicType_Click(int index) {
    const TextControl* samples[] = {nullptr, &ui.type1, &ui.type2, &ui.type3, &ui.type4};
    ui.result->setDocumentHTML(index == 0 ? QString() : samples[index]->text());
}

} // namespace zt
