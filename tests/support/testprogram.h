#pragma once

#include "scripted.h"

#include "platform/formregistry.h"
#include "platform/programfolder.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/settingsstore.h"

#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace zt::test {

// The program's world for one scenario: a temporary program folder with the
// run-time folders, a settings store of its own on disk, scripted boxes and
// pickers, the in-memory engine, and a guard that records instead of ending.
class TestProgram {
public:
    TestProgram();
    ~TestProgram();

    // Runs body as the event loop would: through the guard.
    bool event(const std::function<void()>& body);

    // The path of a file in the scenario's scratch folder (outside the program's).
    QString scratch(const QString& name) const;

    QTemporaryDir dir;
    ScriptedPrompts prompts;
    ScriptedPickers pickers;
    MemoryClipboard clipboard;
    RecordingLauncher launcher;
    FixedDesktop desktop;
    QtSettingsStore settings;
    ProgramFolder folder;
    Services services;
    std::unique_ptr<FormRegistry> forms;

    std::vector<RuntimeFailure> failures;
    int processEnds = 0;
};

QString readFile(const QString& path);
void writeFile(const QString& path, const QString& text);

} // namespace zt::test
