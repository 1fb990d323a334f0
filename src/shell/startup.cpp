#include "startup.h"

#include "document.h"
#include "modapi.h"
#include "optfunctions.h"
#include "tessara.h"
#include "zelvo.h"

#include "platform/dialogparts.h"
#include "platform/eventwatcher.h"
#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/settingsstore.h"
#include "platform/textfiles.h"
#include "platform/vbstrings.h"

#include <QAction>
#include <QCheckBox>
#include <QFileInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace zt {

StartUp::StartUp(FormRegistry& forms) : Form(forms) {
    auto* window = new QWidget(nullptr, Qt::Dialog);
    setWindow(window);
    window->setObjectName(QStringLiteral("StartUp"));
    setCaption(QStringLiteral("Zelvo Start Up Assistant"));

    // The tip strip along the top, on the colour of a page.
    auto* tipStrip = new QFrame(window);
    tipStrip->setObjectName(QStringLiteral("tipStrip"));
    tipStrip->setFrameShape(QFrame::StyledPanel);
    tipStrip->setBackgroundRole(QPalette::Base);
    tipStrip->setAutoFillBackground(true);
    auto* tipIcon = new QLabel(tipStrip);
    const int iconSize = window->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    tipIcon->setPixmap(
        window->style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(iconSize));
    tipIcon->setAlignment(Qt::AlignTop);
    ui.lblTipText = new QLabel(tipStrip);
    ui.lblTipText->setObjectName(QStringLiteral("lblTipText"));
    ui.lblTipText->setWordWrap(true);
    ui.lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ui.lblTipText->setMinimumHeight(ui.lblTipText->fontMetrics().lineSpacing() * 3);
    ui.cmdNextTip = makeButton(tipStrip, "cmdNextTip", QStringLiteral("&Next Tip >>"));
    auto* tipLayout = new QHBoxLayout(tipStrip);
    tipLayout->addWidget(tipIcon);
    tipLayout->addWidget(ui.lblTipText, 1);
    tipLayout->addWidget(ui.cmdNextTip, 0, Qt::AlignBottom);

    // The ways to begin, beside the recent files.
    ui.btnBlank = makeButton(window, "btnBlank", QStringLiteral("Start With Blank Page"));
    ui.btnOpenExist = makeButton(window, "btnOpenExist", QStringLiteral("Open Existing File"));
    ui.btnTemplates = makeButton(window, "btnTemplates", QStringLiteral("Use Templates"));
    ui.btnCrash = makeButton(window, "btnCrash", QStringLiteral("Crash Recovery Wizard"));
    ui.btnHTMLTutor = makeButton(window, "btnHTMLTutor", QStringLiteral("HTML Tutor"));
    ui.btnBlank->setDefault(true);
    auto* actions = new QVBoxLayout;
    for (QPushButton* button :
         {ui.btnBlank, ui.btnOpenExist, ui.btnTemplates, ui.btnCrash, ui.btnHTMLTutor})
        actions->addWidget(button);
    actions->addStretch(1);

    ui.listRecent = new QListWidget(window);
    ui.listRecent->setObjectName(QStringLiteral("listRecent"));
    ui.listRecent->setMinimumWidth(300);
    auto* recentLabel = new QLabel(QStringLiteral("Recent files:"), window);
    recentLabel->setBuddy(ui.listRecent);
    auto* recent = new QVBoxLayout;
    recent->addWidget(recentLabel);
    recent->addWidget(ui.listRecent, 1);

    auto* middle = new QHBoxLayout;
    middle->addLayout(actions);
    middle->addSpacing(8);
    middle->addLayout(recent, 1);

    ui.chkStartup = new QCheckBox(QStringLiteral("Dont show at startup"), window);
    ui.chkStartup->setObjectName(QStringLiteral("chkStartup"));
    ui.btnStartUpHelp = makeButton(window, "btnStartUpHelp", QStringLiteral("Start Up Help"));
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(ui.chkStartup);
    bottom->addStretch(1);
    bottom->addWidget(ui.btnStartUpHelp);

    auto* layout = new QVBoxLayout(window);
    layout->addWidget(tipStrip);
    layout->addSpacing(4);
    layout->addLayout(middle, 1);
    layout->addLayout(bottom);
    window->resize(620, 400);

    onClick(ui.btnBlank, [this] { btnBlank_Click(); });
    onClick(ui.btnOpenExist, [this] { btnOpenExist_Click(); });
    onClick(ui.btnTemplates, [this] { btnTemplates_Click(); });
    onClick(ui.btnCrash, [this] { btnCrash_Click(); });
    onClick(ui.btnHTMLTutor, [this] { btnHTMLTutor_Click(); });
    onClick(ui.btnStartUpHelp, [this] { btnStartUpHelp_Click(); });
    onClick(ui.cmdNextTip, [this] { cmdNextTip_Click(); });
    QObject::connect(ui.chkStartup, &QCheckBox::clicked, ui.chkStartup,
                     guarded([this](bool) { chkStartup_Click(); }));
    QObject::connect(ui.listRecent, &QListWidget::itemDoubleClicked, ui.listRecent,
                     guarded([this](QListWidgetItem*) { listRecent_DblClick(); }));
    new EventWatcher(ui.listRecent->viewport(), QEvent::MouseMove,
                     [this] { listRecent_MouseMove(); });
}

StartUp::~StartUp() = default;

void StartUp::load() {
    m_random.seed(QRandomGenerator::system()->generate());
    if (!LoadTips(services().folder->path(QStringLiteral("misc/TIPOFDAY.TXT"))))
        ui.lblTipText->setText(QStringLiteral("That the TIPOFDAY.TXT file was not found?"));
    else
        nextTip();
    // A failure while filling the recent files ends the filling only.
    orEndSilently([this] { fillRecent(); });
    centreOver(*this, forms().isLoaded<Tessara>() ? &forms().get<Tessara>() : nullptr);
    stayOnTop(*this);
}

bool StartUp::LoadTips(const QString& path) {
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return false;
    // Every line is a tip, an empty one too.
    m_tips << textfiles::readLines(path);
    nextTip();
    return true;
}

void StartUp::nextTip() {
    // At random, so a tip may come twice in a row.
    m_currentTip = int(m_random.generateDouble() * m_tips.size() + 1);
    DisplayCurrentTip();
}

void StartUp::DisplayCurrentTip() {
    if (!m_tips.isEmpty())
        ui.lblTipText->setText(m_tips.at(m_currentTip - 1));
}

// The only place that captions the recent menus at start: the keys the source
// view writes, one to five, into menu entries zero to four on both views.
void StartUp::fillRecent() {
    ui.listRecent->clear();
    Tessara& tessara = forms().get<Tessara>();
    Zelvo& zelvo = forms().get<Zelvo>();
    for (int i = 0; i <= 4; ++i) {
        const QString value = services().settings->getSetting(
            document::kApp, QStringLiteral("MRUs"), QString::number(i + 1), QString());
        for (QAction* item : {tessara.ui.recent[std::size_t(i)], zelvo.ui.recent[std::size_t(i)]}) {
            item->setVisible(!value.isEmpty());
            if (!value.isEmpty())
                item->setText(value);
        }
        if (!value.isEmpty())
            ui.listRecent->addItem(value);
    }
}

void StartUp::titleupdate() {
    const Zelvo& zelvo = forms().get<Zelvo>();
    forms().get<Tessara>().setCaption(
        document::caption(zelvo.ui.star.text(), zelvo.ui.comdlg.fileName));
}

QString StartUp::selectedRecent() const {
    const QListWidgetItem* item = ui.listRecent->currentItem();
    return item && item->isSelected() ? item->text() : QString();
}

void StartUp::btnBlank_Click() {
    unload();
}

void StartUp::btnOpenExist_Click() {
    orEndSilently([this] {
        Zelvo& zelvo = forms().get<Zelvo>();
        CommonDialog& comdlg = zelvo.ui.comdlg;
        comdlg.cancelError = true;
        comdlg.defaultExt = QStringLiteral("html");
        comdlg.filter = document::kFilter;
        comdlg.showOpen();
        if (comdlg.fileName.isEmpty())
            return;
        forms().get<Tessara>().ui.txtComp->loadDocument(comdlg.fileName);
        zelvo.Tag = comdlg.fileName;
        titleupdate();
    });
    unload();
}

void StartUp::btnHTMLTutor_Click() {
    // TODO(HTML tutor): open the tutor here, the same way the HTML Tutor command of
    // the visual view does, once its window (`frmMoreTemp`) exists.
    unload();
}

void StartUp::btnStartUpHelp_Click() {
    FormRegistry& registry = forms();
    unload();
    showHelpPage(registry, QStringLiteral("suwiz.zhp"));
}

void StartUp::cmdNextTip_Click() {
    nextTip();
}

void StartUp::listRecent_DblClick() {
    orEndSilently([this] {
        Zelvo& zelvo = forms().get<Zelvo>();
        CommonDialog& comdlg = zelvo.ui.comdlg;
        comdlg.defaultExt = QStringLiteral("html");
        comdlg.filter = document::kFilter;
        const QString chosen = selectedRecent();
        forms().get<Tessara>().ui.txtComp->loadDocument(chosen);
        comdlg.fileName = chosen;
        zelvo.Tag = comdlg.fileName;
        titleupdate();
    });
    unload();
}

void StartUp::listRecent_MouseMove() {
    ui.listRecent->setToolTip(QStringLiteral("Selected File:") + selectedRecent());
}

void StartUp::chkStartup_Click() {
    // The box's title is a text compared with a number. The text is no number, so
    // the click fails right here and the failure ends the program; the lines below
    // never run. Users turn the assistant off from the Options menu instead.
    const bool title = vb::CDbl(QStringLiteral("Zelvo: Assistant")) == 1;
    services().prompts->msgBox(QStringLiteral("You can activate this from options menu"),
                               vbInformation,
                               title ? QStringLiteral("True") : QStringLiteral("False"));
    services().settings->saveSetting(document::kApp, QStringLiteral("StartUp Assistant"),
                                     QStringLiteral("appear"),
                                     QString::number(ui.chkStartup->isChecked() ? 1 : 0));
    unload();
}

} // namespace zt
