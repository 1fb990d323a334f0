#pragma once

#include "platform/engine/pageengine.h"
#include "support/scripted.h"

#include <QPoint>
#include <QString>
#include <QVariant>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zt {
class WebPageEngine;
}

class QWidget;

namespace zt::test {

enum class EngineKind { Memory, Web };

// Two engines of one kind on one clipboard, with what a test needs beyond the
// engine interface.
class EnginePair {
public:
    virtual ~EnginePair() = default;
    virtual PageEngine& first() = 0;
    virtual PageEngine& second() = 0;
    // Places the selection on the first occurrence of text in engine's page.
    virtual bool selectText(PageEngine& engine, const QString& text) = 0;
    MemoryClipboard clipboard;
};

// Engines are costly to start, so the suites share them: each test sets the page it
// needs. release() ends them before the application goes.
class EngineKit {
public:
    static EnginePair& pair(EngineKind kind);
    static WebPageEngine& web();
    static void release();
};

// Runs script in the page of a real engine, in the application world, and waits
// for its answer.
QVariant evaluate(WebPageEngine& engine, const QString& script);

// Records an engine's events as the program's handlers see them. The key '!' fails
// with an overflow, which the guard records instead of ending the process.
struct EventLog {
    explicit EventLog(PageEngine& engine);
    ~EventLog();
    PageEngine& engine;
    QString keys;
    int moves = 0, displayChanges = 0;
    std::vector<int> failures;
};

// Runs events until check holds or the time is up.
bool eventually(const std::function<bool()>& check,
                std::chrono::milliseconds time = std::chrono::seconds(2));

// Makes a failure that reaches the guard fail the running test, instead of
// ending the process as in the program.
void failAtGuard();

// Writes a file for an engine to load, failing the running test when it cannot.
void writeBytes(const QString& path, const QByteArray& bytes);

// The page that the engines write for a body, with the marker in its head.
QString pageWithMarker(const QString& body);

// Sets a bare page around body, and reads the body's content back without the line
// break that the real engine puts before </BODY>.
void setBody(PageEngine& engine, const char* body);
std::string bodyOf(PageEngine& engine);

class TestProgram;
// A scenario's program whose every engine is a real one.
std::unique_ptr<TestProgram> realProgram();

// The widget of an engine's view that takes the mouse and the keys.
QWidget* inputOf(PageEngine& engine);
// A press at from, two moves and the release at to, in widget's coordinates.
void dragTo(QWidget* widget, QPoint from, QPoint to);

} // namespace zt::test
