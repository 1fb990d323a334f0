#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace zt {

// A form's timer: Interval and Enabled as the program sets them, and a tick that
// enters program code through the guard. A tick that falls while other program code
// is running (inside a synchronous wait of the engine) is deferred until that code
// has returned, so a command never sees a tick in its middle.
class Timer : public QObject {
    Q_OBJECT
public:
    explicit Timer(int interval = 0, QObject* parent = nullptr);

    int interval() const { return m_interval; }
    // As on the control: a new interval restarts the count of an enabled timer, and
    // one beyond 65535 fails with 380, leaving the timer as it was.
    void setInterval(int ms);
    bool enabled() const { return m_enabled; }
    // Enabling starts a fresh count; disabling drops a pending tick.
    void setEnabled(bool on);

    QString tag;
    std::function<void()> onTimer;

    // Runs one tick now, through the guard. Tests drive timers with this.
    void fire();

private:
    void arm();
    void elapsed();

    QTimer m_timer;
    int m_interval;
    bool m_enabled = false;
};

} // namespace zt
