#pragma once

#include <QEvent>
#include <QObject>

#include <functional>

class QWidget;

namespace zt {

// Runs step, through the guard, each time the watched widget receives an event of
// one type (a resize of a form, a mouse move over a button). The event itself goes
// on to the widget.
class EventWatcher : public QObject {
public:
    EventWatcher(QWidget* widget, QEvent::Type type, std::function<void()> step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QEvent::Type m_type;
    std::function<void()> m_step;
};

} // namespace zt
