#include "tempclip.h"

#include "shell/document.h"
#include "shell/modapi.h"
#include "shell/optfunctions.h"
#include "shell/zelvo.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/services.h"
#include "platform/texteditview.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

// A list that takes any drop; what was dropped does not matter to it.
class DropList : public QListWidget {
public:
    DropList(QWidget* parent, std::function<void()> dropped)
        : QListWidget(parent), m_dropped(std::move(dropped)) {
        setDragDropMode(QAbstractItemView::DropOnly);
    }

protected:
    // Taken as a copy, so text dragged out of the display box stays there.
    void dragEnterEvent(QDragEnterEvent* event) override { copy(event); }
    void dragMoveEvent(QDragMoveEvent* event) override { copy(event); }
    void dropEvent(QDropEvent* event) override {
        copy(event);
        Guard::run(m_dropped);
    }

private:
    static void copy(QDropEvent* event) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }

    std::function<void()> m_dropped;
};

} // namespace

TempClip::TempClip(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("TempClip"), QStringLiteral("Temporary Clipboard : Zelvo"));
    setWindow(window);
    ui.listClip = new DropList(window, [this] { listClip_DragDrop(); });
    ui.listClip->setObjectName(QStringLiteral("listClip"));
    ui.listClip->setToolTip(QStringLiteral("List of Items in the clipboard"));
    ui.txtClipView = new TextEditView(ui.txtClip, window);
    ui.txtClipView->setObjectName(QStringLiteral("txtClip"));
    ui.txtClipView->setToolTip(
        QStringLiteral("Display Box - Content of the selected clipboard item"));

    const struct {
        const char* name;
        QString caption, tip;
        QPushButton*& button;
        void (TempClip::*handler)();
    } buttons[] = {
        {"btnPaste", "Paste", "Paste the text in the display box", ui.btnPaste,
         &TempClip::btnPaste_Click},
        {"btnRemove", "Remove Selected", "Remove the selected item from clipboard", ui.btnRemove,
         &TempClip::btnRemove_Click},
        {"btnClear", "Clear", "Clear Temporary Clipboard", ui.btnClear, &TempClip::btnClear_Click},
        {"btnHelp", "Help", "Show Help", ui.btnHelp, &TempClip::btnHelp_Click},
        {"CancelButton", "Close", "Close this window", ui.CancelButton,
         &TempClip::CancelButton_Click},
    };
    auto* column = new QVBoxLayout;
    for (const auto& b : buttons) {
        b.button = makeButton(window, b.name, b.caption);
        b.button->setToolTip(b.tip);
        b.button->setAutoDefault(false);
        onClick(b.button, [this, handler = b.handler] { (this->*handler)(); });
        if (b.button == ui.btnHelp)
            column->addStretch(1);
        column->addWidget(b.button);
    }
    window->setCancelButton(ui.CancelButton);

    auto* texts = new QVBoxLayout;
    texts->addWidget(ui.listClip, 1);
    texts->addWidget(ui.txtClipView, 1);
    auto* layout = new QHBoxLayout(window);
    layout->addLayout(texts, 1);
    layout->addLayout(column);
    window->resize(520, 380);

    QObject::connect(ui.listClip, &QListWidget::itemClicked, ui.listClip,
                     guarded([this](QListWidgetItem*) { listClip_Click(); }));
}

TempClip::~TempClip() = default;

void TempClip::load() {
    stayOnTop(*this);
}

void TempClip::addItem(const QString& text) {
    // A row shows a snippet on one line, its breaks as arrows; it gives back the
    // snippet as it came.
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral(" \u21b5 "));
    shown.replace(QLatin1Char('\r'), QStringLiteral(" \u21b5 "));
    shown.replace(QLatin1Char('\n'), QStringLiteral(" \u21b5 "));
    auto* row = new QListWidgetItem(shown, ui.listClip);
    row->setData(Qt::UserRole, text);
}

QString TempClip::itemText(int row) const {
    const QListWidgetItem* item = ui.listClip->item(row);
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void TempClip::listClip_Click() {
    ui.txtClip.setText(itemText(ui.listClip->currentRow()));
}

void TempClip::listClip_DragDrop() {
    if (ui.txtClip.selLength() >= 1)
        addItem(ui.txtClip.selText());
}

void TempClip::btnPaste_Click() {
    // The display box is what is pasted, as edited; an empty one deletes the selection.
    forms().get<Zelvo>().ui.area.setSelText(ui.txtClip.text());
}

void TempClip::btnRemove_Click() {
    const int row = ui.listClip->currentRow();
    if (row < 0) {
        services().prompts->msgBox(QStringLiteral("No item selected"), vbExclamation,
                                   document::kAssistant);
        return;
    }
    delete ui.listClip->takeItem(row);
}

void TempClip::btnClear_Click() {
    if (services().prompts->msgBox(QStringLiteral("This will clear Temporary Clipboard. Proceed?"),
                                   vbYesNo | vbQuestion | vbDefaultButton2,
                                   document::kAssistant) == vbYes)
        ui.listClip->clear();
}

void TempClip::CancelButton_Click() {
    hide();
}

void TempClip::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("tclip.zhp"));
}

void Zelvo::mnuShowTempClip() {
    forms().get<TempClip>().show();
}

void Zelvo::mnuCopyToTemp() {
    if (ui.area.selLength() > 0)
        forms().get<TempClip>().addItem(ui.area.selText());
}

} // namespace zt
