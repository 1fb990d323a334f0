#include "frmsplash.h"

#include "document.h"
#include "modapi.h"
#include "startup.h"
#include "tessara.h"
#include "zelvo.h"

#include "platform/formregistry.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/settingsstore.h"
#include "platform/vbstrings.h"

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace zt {

frmSplash::frmSplash(FormRegistry& forms) : Form(forms) {
    auto* window = new QFrame(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint);
    setWindow(window);
    window->setObjectName(QStringLiteral("frmSplash"));
    window->setFrameStyle(QFrame::Box | QFrame::Plain);
    window->setLineWidth(1);
    setCaption(QStringLiteral("Zelvo Tessara 3.0"));

    ui.lblTitle = new QLabel(QStringLiteral("Zelvo Tessara 3.0"), window);
    ui.lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont titleFont = ui.lblTitle->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 2.2);
    titleFont.setBold(true);
    ui.lblTitle->setFont(titleFont);

    auto* lblByline = new QLabel(QStringLiteral("Web page authoring"), window);
    lblByline->setObjectName(QStringLiteral("lblByline"));
    lblByline->setForegroundRole(QPalette::PlaceholderText);

    ui.ProgressBar = new QProgressBar(window);
    ui.ProgressBar->setObjectName(QStringLiteral("ProgressBar"));
    ui.ProgressBar->setRange(0, 100);
    ui.ProgressBar->setValue(0);
    ui.ProgressBar->setTextVisible(false);

    ui.lblStatus = new QLabel(QStringLiteral("Loading..."), window);
    ui.lblStatus->setObjectName(QStringLiteral("lblStatus"));

    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(8);
    layout->addWidget(ui.lblTitle);
    layout->addWidget(lblByline);
    layout->addStretch(1);
    layout->addWidget(ui.ProgressBar);
    layout->addWidget(ui.lblStatus);

    window->setFixedSize(460, 220);
    centreOver(*this, nullptr);

    ui.Timer_Progress.onTimer = [this] { Timer_Progress_Timer(); };
}

frmSplash::~frmSplash() = default;

void frmSplash::load() {
    stayOnTop(*this);
    // Enabled from the start: the ticks begin as soon as the form exists.
    ui.Timer_Progress.setEnabled(true);
}

void frmSplash::Timer_Progress_Timer() {
    try {
        const int value = m_tick;
        // The count stops once past the last tick: a splash left running after a
        // failed start must stay quiet however long the program runs.
        if (m_tick < 10)
            ++m_tick;
        tick(value);
    } catch (const RuntimeFailure&) {
        // One answer for every step: say so, and let the user work in the visual
        // view. The timer runs on, and the ticks past the last do nothing.
        services().prompts->msgBox(QStringLiteral("Error 01:\r\nStart up Error"), vbCritical,
                                   document::kAssistant);
        showTessara();
    }
}

void frmSplash::tick(int value) {
    switch (value) {
    case 0:
        ui.ProgressBar->setValue(10);
        ui.lblStatus->setText(QStringLiteral("Initialising Tessara and Editor"));
        break;
    case 1:
        ui.ProgressBar->setValue(20);
        ui.lblStatus->setText(QStringLiteral("Generating Scripts For Action And Crash Save"));
        break;
    case 2:
        ui.ProgressBar->setValue(30);
        ui.lblStatus->setText(QStringLiteral("Initialising Tessara and Editor"));
        break;
    case 3:
        ui.ProgressBar->setValue(40);
        ui.lblStatus->setText(QStringLiteral("Starting Tessara"));
        break;
    case 4:
        ui.ProgressBar->setValue(50);
        showTessara();
        // Back in front of the view that just came up.
        show();
        break;
    case 5:
        show();
        ui.ProgressBar->setValue(60);
        ui.lblStatus->setText(QStringLiteral("Loading Additional Tools and Managers"));
        break;
    case 6:
        ui.ProgressBar->setValue(70);
        ui.lblStatus->setText(QStringLiteral("Loading Wizards and Help Files"));
        break;
    case 7:
        ui.ProgressBar->setValue(80);
        ui.lblStatus->setText(QStringLiteral("Starting Zelvo Tessara 3.0 - By Orvek"));
        break;
    case 8:
        ui.ProgressBar->setValue(90);
        ui.lblStatus->setText(QStringLiteral("Please wait...."));
        break;
    case 9: {
        hide();
        forms().get<Tessara>().ui.txtComp->setFocus();
        // A stored value that is not a number fails here, and the failure path
        // leaves this form hidden and loaded.
        const QString appear =
            services().settings->getSetting(document::kApp, QStringLiteral("StartUp Assistant"),
                                            QStringLiteral("appear"), QStringLiteral("0"));
        if (vb::CDbl(appear) == 0)
            forms().get<StartUp>().show();
        unload();
        break;
    }
    default:
        break;
    }
}

void frmSplash::showTessara() {
    forms().get<Tessara>().show();
    // The source view comes to exist with the visual one and stays hidden.
    forms().get<Zelvo>();
}

} // namespace zt
