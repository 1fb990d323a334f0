#include "bullets.h"

#include "listgen.h"

#include "platform/textlineview.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

bullets::bullets(FormRegistry& forms)
    : ElementDialog(forms, {.name = "bullets",
                            .caption = QStringLiteral("Bullets And Numbering : Zelvo"),
                            .helpPage = QStringLiteral("bulnum.zhp"),
                            .shape = Dispatch::SourceOnly,
                            .hidesFirst = true}),
      pointList(*this, ui, {.pointsCaption = QStringLiteral("P&oints:")}) {
    build(ui.compOrEdit, {
                             // control, caption, default, place, limits
                             {group("grpKind"), "List", "", Place::Line},
                             {option("radBul", ui.radBul), "&Bullets", "", Place::InGroup},
                             {option("radNum", ui.radNum), "&Numbering", "", Place::InGroup},
                             {group("grpBullet"), "Bullet", "", Place::InGroup},
                             {list("listTypeBul", ui.listTypeBul, {"disc", "circle", "square"}), "",
                              "disc", Place::InGroup},
                             {group("grpNumber"), "Number", "", Place::InGroup},
                             {list("listTypeNum", ui.listTypeNum, {"1", "A", "a", "I", "i"}), "",
                              "1", Place::InGroup},
                             {combo("listTypeBula", ui.listTypeBula,
                                    {"none",
                                     "disc",
                                     "circle",
                                     "square",
                                     "decimal",
                                     "decimal-leading-zero",
                                     "lower-roman",
                                     "upper-roman",
                                     "lower-alpha",
                                     "upper-alpha",
                                     "lower-greek",
                                     "lower-latin",
                                     "upper-latin",
                                     "hebrew",
                                     "armenian",
                                     "georgian",
                                     "cjk-ideographic",
                                     "hiragana",
                                     "katakana",
                                     "hiragana-iroha",
                                     "katakana-iroha"}),
                              "List &Style:", "circle"},
                             {text("txtStart", ui.txtStart, ui.txtStartView), "S&tart At:", "",
                              Place::Row, numeric()},
                             {pointList.editor(), "", "", Place::Line},
                             {button("btnInsert", ui.btnInsert), "&Insert", "", Place::Accept},
                             {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                             {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                         });
    // Turning an option on, by the user or by the opener, sets what can be chosen.
    QObject::connect(ui.radBul, &QRadioButton::toggled, ui.radBul, guarded([this](bool on) {
                         if (on)
                             radBul_Click();
                     }));
    QObject::connect(ui.radNum, &QRadioButton::toggled, ui.radNum, guarded([this](bool on) {
                         if (on)
                             radNum_Click();
                     }));
}

bullets::~bullets() = default;

void bullets::radBul_Click() {
    ui.listTypeBul->setEnabled(true);
    ui.listTypeNum->setEnabled(false);
    ui.txtStartView->setEnabled(false);
}

void bullets::radNum_Click() {
    ui.listTypeBul->setEnabled(false);
    ui.listTypeNum->setEnabled(true);
    ui.txtStartView->setEnabled(true);
}

// Only the style box is read: the two small lists serve the look of the dialog.
// A start entered under Numbering stays when Bullets is chosen after it.
QString bullets::fragment() {
    return bulletList({.kind = ui.radBul->isChecked()   ? BulletValues::Bullets
                               : ui.radNum->isChecked() ? BulletValues::Numbering
                                                        : BulletValues::Neither,
                       .type = ui.listTypeBula->currentText(),
                       .start = ui.txtStart.text(),
                       .points = pointList.points()});
}

} // namespace zt
