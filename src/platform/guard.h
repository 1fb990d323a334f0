#pragma once

#include "runtimefailure.h"

#include <functional>
#include <utility>

namespace zt {

// Every entry from the event loop into program code (a menu, a button, a timer
// tick, a list click) runs inside Guard::run. A RuntimeFailure that no handler
// caught ends up here: the run time's box is shown and the process ends. Nothing
// thrown by program code ever unwinds through Qt's own frames.
class Guard {
public:
    // What happens to a failure that reached the guard. The program's default shows
    // the box and ends the process; tests install a recorder.
    using Ending = std::function<void(const RuntimeFailure&)>;
    // What the program's own "end at once" does (Exit, the close of a main window).
    using ProcessEnd = std::function<void()>;

    // Runs body as one event's worth of program code. Returns false when the body
    // ended by a failure or by the end of the process.
    static bool run(const std::function<void()>& body);

    static void setEnding(Ending ending);
    // Runs before the ending of every failure that reaches the guard: the program's
    // chance to keep the open document before the box and the end. It must not
    // throw, and it never runs twice at once.
    static void setBeforeEnding(std::function<void()> save);
    static void setProcessEnd(ProcessEnd end);
    static void restoreDefaults();

    // How many guarded bodies are running now (more than one while a synchronous
    // wait lets events through).
    static int depth();
    // A number for the outermost event whose program code runs now, new with each
    // event; 0 outside any. The edits of one command share it.
    static quint64 currentEvent();

    // Ends the process at once. In tests the installed ProcessEnd records it and the
    // current guarded body is abandoned, so no statement after it runs.
    [[noreturn]] static void endProcess();

    // The box text the run time shows for a failure.
    static QString boxText(const RuntimeFailure& failure);
};

// Marks the abandonment of a guarded body after endProcess() in tests.
struct ProcessEnded {};

// The body of a handler with a failure path: a RuntimeFailure ends it silently at
// the point where it happened, and what was done before stays done.
template <class Body> void orEndSilently(Body body) {
    try {
        body();
    } catch (const RuntimeFailure&) {
    }
}

// Wraps a callable so that each call goes through the guard; for Qt connections.
template <class F> auto guarded(F f) {
    return [f = std::move(f)](auto&&... args) {
        Guard::run([&] { f(std::forward<decltype(args)>(args)...); });
    };
}

} // namespace zt
