#include "frmmoretemp.h"

#include "platform/engine/pageengine.h"
#include "platform/services.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace zt {

frmMoreTemp::frmMoreTemp(FormRegistry& forms) : Form(forms) {
    auto* window = new QWidget(nullptr, Qt::Window);
    window->setObjectName(QStringLiteral("frmMoreTemp"));
    setWindow(window);
    ui.lblLesson = new QLabel(QStringLiteral("Lesson:"), window);
    ui.lblLesson->setObjectName(QStringLiteral("lblLesson"));
    ui.cmbLessons = new QComboBox(window);
    ui.cmbLessons->setObjectName(QStringLiteral("cmbLessons"));
    ui.lblLesson->setBuddy(ui.cmbLessons);
    ui.theWeb = services().makeEngine(window);

    auto* chooser = new QHBoxLayout;
    chooser->addWidget(ui.lblLesson);
    chooser->addWidget(ui.cmbLessons, 1);
    auto* layout = new QVBoxLayout(window);
    if (QWidget* page = ui.theWeb->widget())
        layout->addWidget(page, 1);
    layout->addLayout(chooser);
    window->resize(820, 640);
}

frmMoreTemp::~frmMoreTemp() = default;

void frmMoreTemp::load() {
    // A browser: its pages are read, not edited.
    ui.theWeb->setBrowseMode(true);
}

void frmMoreTemp::browse(const QString& caption, const QString& url) {
    ui.cmbLessons->hide();
    ui.lblLesson->hide();
    setCaption(caption);
    show();
    ui.theWeb->loadURL(url);
}

} // namespace zt
