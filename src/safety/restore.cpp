#include "restore.h"

#include "shell/document.h"
#include "shell/modapi.h"
#include "shell/optfunctions.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "visual/bridge.h"

#include "platform/dialogparts.h"
#include "platform/filelistbox.h"
#include "platform/formregistry.h"
#include "platform/richtext.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

// A button that Enter never presses unless it has the focus: Enter in the name box
// sets a point, it does not restore one.
QPushButton* plainButton(QWidget* parent, const char* name, const QString& caption) {
    QPushButton* button = makeButton(parent, name, caption);
    button->setAutoDefault(false);
    return button;
}

} // namespace

restore::restore(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("restore"), QStringLiteral("Restore Points : Zelvo"));
    setWindow(window);

    ui.lblTitle = new QLabel(window);
    ui.lblTitle->setObjectName(QStringLiteral("lblTitle"));
    ui.txtRestoreView = new TextEditView(ui.txtRestore, window);
    ui.txtRestoreView->setObjectName(QStringLiteral("txtRestore"));
    ui.txtRestoreView->setMinimumSize(420, 260);

    auto* slotsBox = new QGridLayout;
    ui.cmbRestore = new QComboBox(window);
    ui.cmbRestore->setObjectName(QStringLiteral("cmbRestore"));
    ui.cmbRestore->setEditable(true);
    ui.cmbRestore->setInsertPolicy(QComboBox::NoInsert);
    ui.btnCreate = plainButton(window, "btnCreate", QStringLiteral("Create Restore"));
    slotsBox->addWidget(ui.cmbRestore, 0, 0);
    slotsBox->addWidget(ui.btnCreate, 0, 1);
    for (int i = 0; i < 5; ++i) {
        const QString n = QString::number(i + 1);
        ui.cmbRestore->addItem(QStringLiteral("Restore ") + n);
        ui.btnRestore[i] =
            plainButton(window, qPrintable("btnRestore" + n), QStringLiteral("Restore Point ") + n);
        ui.chkStatus[i] = new QCheckBox(QStringLiteral("Restore ") + n, window);
        ui.chkStatus[i]->setObjectName(QStringLiteral("chkStatus") + n);
        // Ticked by Create alone; the user cannot tick or clear it.
        ui.chkStatus[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
        ui.chkStatus[i]->setFocusPolicy(Qt::NoFocus);
        slotsBox->addWidget(ui.btnRestore[i], i + 1, 0);
        slotsBox->addWidget(ui.chkStatus[i], i + 1, 1);
        onClick(ui.btnRestore[i], [this, i] { btnRestore_Click(i + 1); });
    }
    ui.cmbRestore->setCurrentText(QStringLiteral("Restore 1"));

    // The panel's caption is a sentence: it wraps inside the frame, not across it.
    auto* panel = new QGroupBox(window);
    panel->setObjectName(QStringLiteral("frmPanel"));
    auto* panelCaption = new QLabel(
        QStringLiteral("The above 5 restore points are temporary. Use this panel, if you want "
                       "a restore point lasting even after program shutdown"),
        panel);
    panelCaption->setWordWrap(true);
    ui.File1 = new FileListBox("File1", QStringLiteral("*.rpw"), panel);
    ui.File1->setFixedHeight(ui.File1->fontMetrics().height() * 6);
    ui.txtPRestoreNameView = new TextLineView(ui.txtPRestoreName, panel);
    ui.txtPRestoreNameView->setObjectName(QStringLiteral("txtPRestoreName"));
    ui.btnSet = plainButton(panel, "btnSet", QStringLiteral("Set"));
    ui.btnLoad = plainButton(panel, "btnLoad", QStringLiteral("Load"));
    ui.btnRemove = plainButton(panel, "btnRemove", QStringLiteral("Remove"));
    auto* panelGrid = new QGridLayout(panel);
    panelGrid->addWidget(panelCaption, 0, 0, 1, 2);
    panelGrid->addWidget(ui.File1, 1, 0, 3, 1, Qt::AlignTop);
    panelGrid->addWidget(ui.btnLoad, 1, 1);
    panelGrid->addWidget(ui.btnRemove, 2, 1);
    panelGrid->setRowStretch(3, 1);
    panelGrid->addWidget(ui.txtPRestoreNameView, 4, 0);
    panelGrid->addWidget(ui.btnSet, 4, 1);

    auto* side = new QWidget(window);
    side->setFixedWidth(360);
    auto* sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addLayout(slotsBox);
    sideLayout->addWidget(panel, 1);
    auto* top = new QHBoxLayout;
    auto* display = new QVBoxLayout;
    display->addWidget(ui.lblTitle);
    display->addWidget(ui.txtRestoreView, 1);
    top->addLayout(display, 1);
    top->addWidget(side);

    ui.OKButton = plainButton(window, "OKButton", QStringLiteral("OK"));
    ui.CancelButton = plainButton(window, "CancelButton", QStringLiteral("Close"));
    ui.btnHelp = plainButton(window, "btnHelp", QStringLiteral("Help"));
    ui.btnHelp->setToolTip(QStringLiteral("Show Help"));
    window->setCancelButton(ui.CancelButton);
    auto* foot = new QHBoxLayout;
    foot->addWidget(ui.btnHelp);
    foot->addStretch(1);
    foot->addWidget(ui.OKButton);
    foot->addWidget(ui.CancelButton);

    auto* layout = new QVBoxLayout(window);
    layout->addLayout(top, 1);
    layout->addLayout(foot);

    onClick(ui.btnCreate, [this] { btnCreate_Click(); });
    onClick(ui.btnSet, [this] { btnSet_Click(); });
    onClick(ui.btnLoad, [this] { btnLoad_Click(); });
    onClick(ui.btnRemove, [this] { btnRemove_Click(); });
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
    QObject::connect(ui.txtPRestoreNameView, &QLineEdit::returnPressed, ui.btnSet,
                     guarded([this] { btnSet_Click(); }));
    ui.File1->onDblClick = [this] { btnLoad_Click(); };
}

restore::~restore() = default;

void restore::load() {
    ui.File1->setPath(services().folder->path(QStringLiteral("crash")));
    stayOnTop(*this);
}

QString restore::pointPath(const QString& fileName) const {
    return services().folder->path(QStringLiteral("crash")) + QLatin1Char('/') + fileName;
}

void restore::btnCreate_Click() {
    for (int i = 0; i < 5; ++i) {
        if (ui.cmbRestore->currentText() != QStringLiteral("Restore %1").arg(i + 1))
            continue;
        ui.txtRestoreSlot[i].setText(ui.txtRestore.text());
        ui.lblTitle->setText(QStringLiteral("Restore Point %1 Set").arg(i + 1));
        ui.chkStatus[i]->setChecked(true);
    }
}

void restore::btnRestore_Click(int n) {
    ui.lblTitle->setText(QStringLiteral("Restore Point %1").arg(n));
    ui.txtRestore.setText(ui.txtRestoreSlot[n - 1].text());
}

void restore::btnSet_Click() {
    // No name check and no question: an empty name writes ".rpw", an old point is
    // replaced, and a name the file system refuses fails unprotected.
    richtext::saveFile(pointPath(ui.txtPRestoreName.text() + QStringLiteral(".rpw")),
                       ui.txtRestore.text());
    ui.File1->refresh();
}

void restore::sayFailed(const QString& text) {
    hide();
    services().prompts->msgBox(text, vbCritical, document::kAssistant);
    show();
}

void restore::btnLoad_Click() {
    try {
        ui.txtRestore.setText(richtext::loadFile(pointPath(ui.File1->fileName())));
        ui.lblTitle->setText(QStringLiteral("Contents of loaded restore point"));
    } catch (const RuntimeFailure&) {
        sayFailed(QStringLiteral("An error occurred when trying to load document."));
    }
}

void restore::btnRemove_Click() {
    // With nothing selected the path is the folder's, which no file delete removes.
    const QString path = pointPath(ui.File1->fileName());
    if (ui.File1->fileName().isEmpty() || !QFile::remove(path)) {
        sayFailed(QStringLiteral("An error occurred when trying to remove document."));
        return;
    }
    ui.File1->refresh();
}

void restore::OKButton_Click() {
    hide();
    const int answer = services().prompts->msgBox(
        QStringLiteral("Using Restore Point is going to take your page back to the last time "
                       "Restore Point was created. Proceed?"),
        vbYesNo | vbQuestion, document::kAssistant);
    if (answer == vbYes) {
        forms().get<Zelvo>().ui.area.setText(ui.txtRestore.text());
        forms().get<Tessara>().ui.txtComp->setDocumentHTML(ui.txtRestore.text());
        hide();
        return;
    }
    show();
    ui.OKButton->setFocus();
}

void restore::CancelButton_Click() {
    hide();
}

void restore::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("restore.zhp"));
}

// Each view shows its own text in the display; the slots stay as they were.
void Zelvo::mnuRestore() {
    restore& points = forms().get<restore>();
    points.ui.txtRestore.setText(ui.area.text());
    points.ui.lblTitle->setText(QStringLiteral("Current Editor Contents"));
    points.show();
}

void Tessara::mnuRestore() {
    restore& points = forms().get<restore>();
    VisualSync(*ui.txtComp, RuleSet::StandardScrub, points.ui.txtRestore);
    points.ui.lblTitle->setText(QStringLiteral("Current Editor Contents"));
    points.show();
}

} // namespace zt
