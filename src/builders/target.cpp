#include "target.h"

#include "shell/modapi.h"

#include "platform/dialogparts.h"
#include "platform/textlineview.h"

#include <QListWidget>
#include <QPushButton>

namespace zt {

namespace {

// The rows of the list and the attribute each writes.
const std::pair<const char*, const char*> kTargets[] = {
    {"Default (None)", ""},
    {"Same Frame", R"( target="_self")"},
    {"Whole Page", R"( target="_top")"},
    {"New Window", R"( target="_blank")"},
    {"Parent Frame", R"( target="_parent")"},
};

} // namespace

target::target(FormRegistry& forms) : Form(forms) {
    auto* window = new DialogWindow(QStringLiteral("target"), QStringLiteral("Target Frame"));
    setWindow(window);
    QStringList rows;
    for (const auto& [row, attribute] : kTargets)
        rows << QLatin1String(row);
    layOut(window,
           {
               // control, caption, default, place
               {list("listTarget", ui.listTarget, rows), "&Open the link in:", "", Place::Line},
               {text("txtTarget", ui.txtTarget, ui.txtTargetView), "&Attribute:"},
               {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
               {button("CancelButton", ui.CancelButton), "Close", "", Place::Cancel},
           });
    ui.txtTargetView->setMinimumWidth(220);
    QObject::connect(ui.listTarget, &QListWidget::itemClicked, ui.listTarget,
                     guarded([this](QListWidgetItem*) { listTarget_Click(); }));
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

target::~target() = default;

void target::load() {
    stayOnTop(*this);
}

void target::listTarget_Click() {
    const int row = ui.listTarget->currentRow();
    if (row >= 0 && row < int(std::size(kTargets)))
        ui.txtTarget.setText(QLatin1String(kTargets[row].second));
}

void target::OKButton_Click() {
    hide();
}

void target::CancelButton_Click() {
    unload();
}

} // namespace zt
