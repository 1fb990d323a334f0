#include "heading.h"

#include "headinggen.h"

#include "platform/textlineview.h"

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

heading::heading(FormRegistry& forms)
    : ElementDialog(forms, {.name = "heading",
                            .caption = QStringLiteral("Insert Heading : Zelvo"),
                            .helpPage = QStringLiteral("heading.zhp")}) {
    build(ui.compOrEdit, {
                             // control, caption, default, place
                             {group(), "Level", "", Place::Line},
                             {option("radLevel1", ui.radLevel1), "Heading &1", "1", Place::InGroup},
                             {option("radLevel2", ui.radLevel2), "Heading &2", "", Place::InGroup},
                             {option("radLevel3", ui.radLevel3), "Heading &3", "", Place::InGroup},
                             {option("radLevel4", ui.radLevel4), "Heading &4", "", Place::InGroup},
                             {option("radLevel5", ui.radLevel5), "Heading &5", "", Place::InGroup},
                             {option("radLevel6", ui.radLevel6), "Heading &6", "", Place::InGroup},
                             {group(), "Alignment", "", Place::InGroup},
                             {list("listAlign", ui.listAlign, {"Left", "Center", "Right"}), "", "",
                              Place::InGroup},
                             {text("txtHeading", ui.txtHeading, ui.txtHeadingView), "&Text:"},
                             {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                             {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                             {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                         });
}

heading::~heading() = default;

void heading::load() {
    ui.listAlign->setCurrentRow(0);
    ElementDialog::load();
}

int heading::level() const {
    const std::array options{ui.radLevel1, ui.radLevel2, ui.radLevel3,
                             ui.radLevel4, ui.radLevel5, ui.radLevel6};
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (options[i]->isChecked())
            return int(i) + 1;
    }
    return 0;
}

QString heading::fragment() {
    const QListWidgetItem* row = ui.listAlign->currentItem();
    return headingTag({.level = level(),
                       .align = row && row->isSelected() ? row->text() : QString(),
                       .text = ui.txtHeading.text()});
}

} // namespace zt
