#include "eventwatcher.h"

#include "guard.h"

#include <QWidget>

namespace zt {

EventWatcher::EventWatcher(QWidget* widget, QEvent::Type type, std::function<void()> step)
    : QObject(widget), m_type(type), m_step(std::move(step)) {
    if (type == QEvent::MouseMove)
        widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

bool EventWatcher::eventFilter(QObject*, QEvent* event) {
    if (event->type() == m_type)
        Guard::run(m_step);
    return false;
}

} // namespace zt
