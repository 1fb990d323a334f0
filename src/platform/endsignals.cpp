#include "endsignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace zt {

namespace {

int g_pipe[2] = {-1, -1};

constexpr int kSignals[] = {SIGTERM, SIGHUP};

void onSignal(int signal) {
    const int saved = errno;
    const char number = char(signal);
    // Nothing but write(2) here: it is safe inside a handler, and a full pipe
    // already holds a signal the loop has yet to read.
    [[maybe_unused]] const ssize_t written = ::write(g_pipe[1], &number, 1);
    errno = saved;
}

} // namespace

EndSignals::EndSignals(std::function<void(int)> onSignalRead, QObject* parent)
    : QObject(parent), m_onSignal(std::move(onSignalRead)) {
    if (::pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char number = 0;
        if (::read(g_pipe[0], &number, 1) == 1 && m_onSignal)
            m_onSignal(number);
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals)
        sigaction(signal, &action, nullptr);
}

EndSignals::~EndSignals() {
    for (const int signal : kSignals)
        std::signal(signal, SIG_DFL);
    delete m_notifier;
    ::close(g_pipe[0]);
    ::close(g_pipe[1]);
    g_pipe[0] = g_pipe[1] = -1;
}

void EndSignals::endBySignal(int signal) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    std::_Exit(128 + signal);
}

} // namespace zt
