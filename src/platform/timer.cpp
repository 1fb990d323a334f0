#include "timer.h"

#include "guard.h"
#include "runtimefailure.h"

namespace zt {

Timer::Timer(int interval, QObject* parent) : QObject(parent), m_interval(interval) {
    m_timer.setSingleShot(false);
    connect(&m_timer, &QTimer::timeout, this, &Timer::elapsed);
}

void Timer::setInterval(int ms) {
    // The control's interval is an unsigned 16-bit number.
    if (ms < 0 || ms > 65535)
        throw RuntimeFailure::invalidPropertyValue();
    m_interval = ms;
    arm();
}

void Timer::setEnabled(bool on) {
    m_enabled = on;
    arm();
}

void Timer::arm() {
    // An interval of 0 never ticks, as on the control.
    if (m_enabled && m_interval > 0)
        m_timer.start(m_interval);
    else
        m_timer.stop();
}

void Timer::elapsed() {
    if (Guard::depth() > 0) {
        // Program code is running below us (a synchronous wait lets events through).
        // Try again as soon as the event loop is free.
        m_timer.start(0);
        return;
    }
    if (m_timer.interval() != m_interval && m_enabled)
        m_timer.start(m_interval);
    fire();
}

void Timer::fire() {
    Guard::run([this] {
        if (onTimer)
            onTimer();
    });
}

} // namespace zt
