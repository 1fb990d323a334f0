#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace zt {

// The desktop ends a program with SIGTERM (and SIGHUP when the session closes).
// The signal handler only writes the signal's number into a pipe; the event loop
// reads it and calls onSignal with it, where anything may be done. onSignal is
// expected to end the process; see endBySignal.
class EndSignals : public QObject {
public:
    explicit EndSignals(std::function<void(int)> onSignal, QObject* parent = nullptr);
    ~EndSignals() override;

    // Ends the process as the signal would have without a handler of ours.
    [[noreturn]] static void endBySignal(int signal);

private:
    std::function<void(int)> m_onSignal;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace zt
