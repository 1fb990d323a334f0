#pragma once

#include "desktop.h"
#include "engine/pageengine.h"
#include "programfolder.h"
#include "prompts.h"
#include "settingsstore.h"

#include <functional>
#include <memory>

class QWidget;

namespace zt {

// The desktop services the program is written against. The program's main() puts
// the real ones here; tests put scripted ones.
struct Services {
    Prompts* prompts = nullptr;
    Pickers* pickers = nullptr;
    Clipboard* clipboard = nullptr;
    Launcher* launcher = nullptr;
    Desktop* desktop = nullptr;
    SettingsStore* settings = nullptr;
    ProgramFolder* folder = nullptr;
    // Makes a visual editing control inside parent.
    std::function<std::unique_ptr<PageEngine>(QWidget* parent)> makeEngine;
};

} // namespace zt
