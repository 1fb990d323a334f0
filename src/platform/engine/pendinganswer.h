#pragma once

#include <QVariant>

#include <chrono>
#include <memory>

class QEventLoop;

namespace zt {

// An answer the engine's process will give later, waited for inside the call that
// needs it, so that reads of the page are synchronous for the program.
//
// The wait runs a local event loop that holds user input back (it stays queued and
// arrives after the call) but lets timers and the engine's own traffic through.
// Waits nest: a timer that fires during one wait may start another, and each ends
// on its own answer. An answer that comes after its wait gave up lands in shared
// state and is dropped.
class PendingAnswer {
public:
    PendingAnswer();

    void finish(const QVariant& value) const;
    bool finished() const;

    // The value given to finish(). Throws RuntimeFailure 5 when the deadline passes
    // first.
    QVariant wait(std::chrono::milliseconds deadline) const;

private:
    struct State {
        bool done = false;
        QVariant value;
        QEventLoop* loop = nullptr;
    };
    std::shared_ptr<State> m_state;
};

} // namespace zt
