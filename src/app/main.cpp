#include "platform/endsignals.h"
#include "platform/engine/webengine.h"
#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/programfolder.h"
#include "platform/qtservices.h"
#include "platform/services.h"
#include "platform/settingsstore.h"
#include "safety/finalsave.h"
#include "shell/frmsplash.h"

#include <QApplication>
#include <QIcon>

#include <unistd.h>

int main(int argc, char** argv) {
    // The page engine's own sandbox refuses to start for root; a desktop user
    // never runs as root, a fresh build machine does.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    zt::WebPageEngine::registerSchemes();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zelvo Tessara"));
    QApplication::setApplicationVersion(QStringLiteral("3.0"));
    // Outside a desktop session no icon theme is named; the toolbars' pictures come
    // from the theme Debian installs with the toolkit.
    if (QIcon::themeName().isEmpty() || QIcon::themeName() == QLatin1String("hicolor"))
        QIcon::setThemeName(QStringLiteral("Adwaita"));

    zt::QtPrompts prompts;
    zt::QtPickers pickers;
    zt::QtClipboard clipboard;
    zt::QtLauncher launcher;
    zt::QtDesktop desktop;
    zt::QtSettingsStore settings;
    zt::ProgramFolder folder(QCoreApplication::applicationDirPath());

    zt::Services services;
    services.prompts = &prompts;
    services.pickers = &pickers;
    services.clipboard = &clipboard;
    services.launcher = &launcher;
    services.desktop = &desktop;
    services.settings = &settings;
    services.folder = &folder;
    services.makeEngine = [&clipboard](QWidget* parent) {
        return std::make_unique<zt::WebPageEngine>(clipboard, parent);
    };
    zt::FormRegistry forms(services);

    // The run time's failure still shows its box and ends the program, and the
    // desktop may end it at logout; either way the open document is kept first.
    zt::Guard::setBeforeEnding([&forms] { zt::finalsave::writeOpenDocument(forms); });
    zt::EndSignals endSignals([&forms](int signal) {
        if (zt::finalsave::unsavedWork(forms))
            zt::finalsave::writeOpenDocument(forms);
        zt::EndSignals::endBySignal(signal);
    });

    // The splash comes first; its ticks bring up the visual view and then the
    // start-up assistant.
    zt::Guard::run([&] { forms.get<zt::frmSplash>().show(); });
    return app.exec();
}
