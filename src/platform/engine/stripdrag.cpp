#include "stripdrag.h"

#include <QApplication>
#include <QMouseEvent>

namespace zt {

StripDrag::~StripDrag() {
    end();
}

bool StripDrag::filter(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            return false;
        end();
        m_pressedAt = mouse->globalPosition().toPoint();
        return true;
    }
    case QEvent::MouseMove: {
        if (!m_pressedAt)
            return false;
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        if (!m_dragging &&
            (at - *m_pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
            m_dragging = true;
            QApplication::setOverrideCursor(Qt::DragCopyCursor);
        }
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (!m_pressedAt || mouse->button() != Qt::LeftButton)
            return false;
        const bool dropped = m_dragging;
        end();
        if (dropped)
            m_drop(mouse->globalPosition().toPoint());
        return true;
    }
    default:
        return false;
    }
}

void StripDrag::end() {
    if (m_dragging)
        QApplication::restoreOverrideCursor();
    m_dragging = false;
    m_pressedAt.reset();
}

} // namespace zt
