#include "pendinganswer.h"

#include "platform/runtimefailure.h"

#include <QEventLoop>
#include <QTimer>

namespace zt {

PendingAnswer::PendingAnswer() : m_state(std::make_shared<State>()) {}

void PendingAnswer::finish(const QVariant& value) const {
    if (m_state->done)
        return;
    m_state->done = true;
    m_state->value = value;
    if (m_state->loop)
        m_state->loop->quit();
}

bool PendingAnswer::finished() const {
    return m_state->done;
}

QVariant PendingAnswer::wait(std::chrono::milliseconds deadline) const {
    const std::shared_ptr<State> state = m_state;
    if (!state->done) {
        QEventLoop loop;
        QTimer timer;
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(deadline);
        state->loop = &loop;
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        state->loop = nullptr;
    }
    if (!state->done)
        throw RuntimeFailure::invalidProcedureCall();
    return state->value;
}

} // namespace zt
