// The tag list beside the source text: its search box, its double click that writes
// a tag round the selection or opens the dialog of the element, and the quick
// reference buttons above it.
#include "taglist.h"

#include "shell/zelvo.h"

#include "platform/backcolor.h"
#include "platform/dialogparts.h"
#include "platform/eventwatcher.h"
#include "platform/geometry.h"
#include "platform/statusbar.h"
#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QGridLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace zt {

namespace {

// The tags whose double click opens the element's dialog instead of writing the
// tag; the whole line is the key. `<input>` stands alone and is written before
// this table is asked, so its form menu is never reached and is not listed.
struct CatalogueAction {
    const char* tag;
    void (Zelvo::*open)();
};
constexpr std::array kCatalogueActions{
    CatalogueAction{"<img>", &Zelvo::mnuImage},
    CatalogueAction{"<table>", &Zelvo::mnuinstable},
    CatalogueAction{"<tr>", &Zelvo::mnuinsrowcol},
    CatalogueAction{"<font>", &Zelvo::mnuFont},
    CatalogueAction{"<a>", &Zelvo::mnuHyperlink},
    CatalogueAction{"<textarea>", &Zelvo::mnuTextArea},
    CatalogueAction{"<button>", &Zelvo::mnuButton},
    CatalogueAction{"<select>", &Zelvo::mnuDropDown},
    CatalogueAction{"<fieldset>", &Zelvo::mnuFieldset},
    CatalogueAction{"<ul>", &Zelvo::mnuBullets},
    CatalogueAction{"<ol>", &Zelvo::mnuNumbering},
};

constexpr auto kComment = "<!--...-->";

// Headings stand out in bold; what a line does stays with its text alone.
void showHeadings(QListWidget& list) {
    for (int i = 0; i < list.count(); ++i) {
        QListWidgetItem* item = list.item(i);
        const QString& line = item->text();
        if (!line.isEmpty() && !taglist::isTag(line) && !taglist::isReferenceLine(line)) {
            QFont font = item->font();
            font.setBold(true);
            item->setFont(font);
        }
    }
}

QStringList linesOf(const QListWidget& list) {
    QStringList lines;
    for (int i = 0; i < list.count(); ++i)
        lines << list.item(i)->text();
    return lines;
}

} // namespace

void Zelvo::buildTagList(QWidget* central) {
    ui.tagPanel = new QWidget(central);
    ui.tagPanel->setObjectName(QStringLiteral("tagPanel"));
    auto* column = new QVBoxLayout(ui.tagPanel);
    column->setContentsMargins(4, 0, 0, 0);
    column->setSpacing(3);

    auto* bar = new QGridLayout;
    bar->setSpacing(2);
    const std::array buttons{
        std::tuple{&ui.btnQBHtml, "btnQBHtml", "HTML", &Zelvo::btnQBHtml_Click},
        std::tuple{&ui.btnQBCss, "btnQBCss", "CSS", &Zelvo::btnQBCss_Click},
        std::tuple{&ui.btnQBForms, "btnQBForms", "Forms", &Zelvo::btnQBForms_Click},
        std::tuple{&ui.btnQBTables, "btnQBTables", "Tables", &Zelvo::btnQBTables_Click},
    };
    for (int i = 0; i < int(buttons.size()); ++i) {
        const auto& [member, name, caption, handler] = buttons[std::size_t(i)];
        QPushButton* button = makeButton(ui.tagPanel, name, QString::fromLatin1(caption));
        button->setFocusPolicy(Qt::NoFocus);
        setBackColor(*button, i == 0 ? syscolour::k3DLight : syscolour::kTitleBarText);
        onClick(button, [this, h = handler] { (this->*h)(); });
        bar->addWidget(button, i / 2, i % 2);
        *member = button;
    }
    column->addLayout(bar);

    ui.txtSearchTagView = new TextLineView(ui.txtSearchTag, ui.tagPanel);
    ui.txtSearchTagView->setObjectName(QStringLiteral("txtSearchTag"));
    ui.txtSearchTagView->setToolTip(
        QStringLiteral("Enter the tag here, and it'll get selected below"));
    ui.txtSearchTag.setText(taglist::kSearchPrompt);
    ui.txtSearchTag.addChangeHandler([this] { txtSearchTag_Change(); });
    new EventWatcher(ui.txtSearchTagView, QEvent::FocusIn, [this] { txtSearchTag_GotFocus(); });
    new EventWatcher(ui.txtSearchTagView, QEvent::FocusOut, [this] { txtSearchTag_LostFocus(); });
    column->addWidget(ui.txtSearchTagView);

    ui.lstAllTags = new QListWidget(ui.tagPanel);
    ui.lstAllTags->setObjectName(QStringLiteral("lstAllTags"));
    fillTagList(taglist::designLines());
    QObject::connect(ui.lstAllTags, &QListWidget::currentRowChanged, ui.lstAllTags,
                     guarded([this](int) { lstAllTags_Click(); }));
    QObject::connect(ui.lstAllTags, &QListWidget::itemClicked, ui.lstAllTags,
                     guarded([this](QListWidgetItem*) { lstAllTags_Click(); }));
    QObject::connect(ui.lstAllTags, &QListWidget::itemDoubleClicked, ui.lstAllTags,
                     guarded([this](QListWidgetItem*) { lstAllTags_DblClick(); }));
    column->addWidget(ui.lstAllTags, 1);
}

void Zelvo::fillTagList(const QStringList& lines) {
    ui.lstAllTags->addItems(lines);
    showHeadings(*ui.lstAllTags);
}

QString Zelvo::selectedTagLine() const {
    const QListWidgetItem* item = ui.lstAllTags->currentItem();
    return item && item->isSelected() ? item->text() : QString();
}

void Zelvo::lstAllTags_Click() {
    const QString line = selectedTagLine();
    ui.lstAllTags->setToolTip(line);
    ui.StatusBar1->setPanelText(1, line);
}

void Zelvo::lstAllTags_DblClick() {
    if (backColor(*ui.btnQBHtml) == syscolour::k3DLight)
        insertCatalogueTag();
    else
        insertReferenceLine();
    ui.areaView->setFocus();
}

void Zelvo::txtSearchTag_Change() {
    const int found = taglist::findLine(linesOf(*ui.lstAllTags), ui.txtSearchTag.text());
    if (found >= 0)
        ui.lstAllTags->setCurrentRow(found);
}

void Zelvo::txtSearchTag_GotFocus() {
    ui.txtSearchTag.setText(QString());
}

void Zelvo::txtSearchTag_LostFocus() {
    ui.txtSearchTag.setText(taglist::kSearchPrompt);
}

// A tag goes round the selection as the list spells it, and the caret ends behind
// the closing tag; a tag with a dialog of its own opens that instead.
void Zelvo::insertCatalogueTag() {
    const QString tag = selectedTagLine();
    if (!taglist::isTag(tag))
        return;
    const QString closing = taglist::closingTag(tag);
    if (!closing.isEmpty()) {
        for (const CatalogueAction& action : kCatalogueActions) {
            if (tag == QLatin1String(action.tag)) {
                (this->*action.open)();
                return;
            }
        }
        if (tag == QLatin1String(kComment)) {
            ui.area.setSelText(QStringLiteral("<!--") + ui.area.selText() + QStringLiteral("-->"));
            return;
        }
    }
    ui.area.setSelText(tag + ui.area.selText() + closing);
}

void Zelvo::insertReferenceLine() {
    const QString line = selectedTagLine();
    if (taglist::isReferenceLine(line))
        ui.area.setSelText(line);
}

} // namespace zt
