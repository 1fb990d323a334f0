// The visual view's commands for the start-up assistant.
#include "tessara.h"

#include "document.h"
#include "startup.h"

#include "platform/formregistry.h"
#include "platform/menutable.h"
#include "platform/services.h"
#include "platform/settingsstore.h"
#include "platform/vbstrings.h"

namespace zt {

// Flips the setting between 1 (no assistant at start) and 0. The mark means "the
// assistant comes up"; it is not set at start, so it tells the truth only after the
// first click.
void Tessara::mnuEnableStartUp() {
    SettingsStore& store = *services().settings;
    const QString section = QStringLiteral("StartUp Assistant");
    const QString key = QStringLiteral("appear");
    if (vb::CDbl(store.getSetting(document::kApp, section, key, QStringLiteral("0"))) == 1) {
        store.saveSetting(document::kApp, section, key, QStringLiteral("0"));
        setMark(ui.mnuEnableStartUp, true);
    } else {
        store.saveSetting(document::kApp, section, key, QStringLiteral("1"));
        setMark(ui.mnuEnableStartUp, false);
    }
}

void Tessara::mnuShowStartUp() {
    forms().get<StartUp>().show();
}

} // namespace zt
