#include "heading.h"

#include "headinggen.h"
#include "platform/dialogparts.h"
#include "protocol.h"

#include "shell/modapi.h"
#include "shell/optfunctions.h"

#include "platform/textlineview.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zt {

heading::heading(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("heading"), QStringLiteral("Insert Heading : Zelvo"));
    setWindow(window);

    auto* levels = new QGroupBox(QStringLiteral("Level"), window);
    ui.radLevel1 = makeOption(levels, "radLevel1", QStringLiteral("Heading &1"));
    ui.radLevel2 = makeOption(levels, "radLevel2", QStringLiteral("Heading &2"));
    ui.radLevel3 = makeOption(levels, "radLevel3", QStringLiteral("Heading &3"));
    ui.radLevel4 = makeOption(levels, "radLevel4", QStringLiteral("Heading &4"));
    ui.radLevel5 = makeOption(levels, "radLevel5", QStringLiteral("Heading &5"));
    ui.radLevel6 = makeOption(levels, "radLevel6", QStringLiteral("Heading &6"));
    ui.radLevel1->setChecked(true);
    auto* levelGrid = new QGridLayout(levels);
    const auto options = levelOptions();
    for (int i = 0; i < int(options.size()); ++i)
        levelGrid->addWidget(options[std::size_t(i)], i % 3, i / 3);

    auto* alignment = new QGroupBox(QStringLiteral("Alignment"), window);
    ui.listAlign =
        makeList(alignment, "listAlign",
                 {QStringLiteral("Left"), QStringLiteral("Center"), QStringLiteral("Right")});
    ui.listAlign->setSelectionMode(QAbstractItemView::SingleSelection);
    // Three rows, no more room than they need.
    ui.listAlign->setFixedHeight(ui.listAlign->sizeHintForRow(0) * 3 +
                                 2 * ui.listAlign->frameWidth());
    auto* alignmentBox = new QVBoxLayout(alignment);
    alignmentBox->addWidget(ui.listAlign);

    ui.txtHeadingView = makeLine(window, "txtHeading", ui.txtHeading);
    ui.txtHeadingView->setMinimumWidth(280);
    ui.OKButton = makeButton(window, "OKButton", QStringLiteral("OK"));
    ui.CancelButton = makeButton(window, "CancelButton", QStringLiteral("Cancel"));
    ui.btnHelp = makeButton(window, "btnHelp", QStringLiteral("Help"));

    auto* choices = new QHBoxLayout;
    choices->addWidget(levels);
    choices->addWidget(alignment);
    auto* text = new QFormLayout;
    text->addRow(QStringLiteral("&Text:"), ui.txtHeadingView);
    auto* layout = new QVBoxLayout(window);
    layout->addLayout(choices);
    layout->addLayout(text);
    layout->addStretch(1);
    layout->addWidget(makeButtonRow(window, ui.OKButton, ui.CancelButton, ui.btnHelp));
    layout->setSizeConstraint(QLayout::SetFixedSize);

    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
}

heading::~heading() = default;

void heading::load() {
    ui.listAlign->setCurrentRow(0);
    stayOnTop(*this);
}

std::array<QRadioButton*, 6> heading::levelOptions() const {
    return {ui.radLevel1, ui.radLevel2, ui.radLevel3, ui.radLevel4, ui.radLevel5, ui.radLevel6};
}

int heading::level() const {
    const auto options = levelOptions();
    for (int i = 0; i < int(options.size()); ++i) {
        if (options[std::size_t(i)]->isChecked())
            return i + 1;
    }
    return 0;
}

void heading::OKButton_Click() {
    const QListWidgetItem* row = ui.listAlign->currentItem();
    const HeadingValues values{.level = level(),
                               .align = row && row->isSelected() ? row->text() : QString(),
                               .text = ui.txtHeading.text()};
    deliver(forms(), Dispatch::EditFirst, ui.compOrEdit.text(), headingTag(values));
    unload();
}

void heading::CancelButton_Click() {
    unload();
}

void heading::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("heading.zhp"));
}

} // namespace zt
