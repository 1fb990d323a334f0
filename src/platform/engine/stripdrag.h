#pragma once

#include <QPoint>

#include <functional>
#include <optional>

class QEvent;

namespace zt {

// The pointer's side of a drag from a strip page to another view. A page view
// cannot take part in a drag between two views by itself, so the strip's mouse
// events are read before its page sees them: a press with the left button picks up,
// a move beyond the start distance drags (with the copy cursor), and the release
// drops at its place on the screen. The page sees none of these presses, so a strip
// never starts a selection or a drag of its own.
class StripDrag {
public:
    using Drop = std::function<void(const QPoint& global)>;
    explicit StripDrag(Drop drop) : m_drop(std::move(drop)) {}
    ~StripDrag();
    StripDrag(const StripDrag&) = delete;
    StripDrag& operator=(const StripDrag&) = delete;

    // True when the event belongs to a drag and must not reach the page.
    bool filter(QEvent* event);

private:
    void end();

    Drop m_drop;
    std::optional<QPoint> m_pressedAt;
    bool m_dragging = false;
};

} // namespace zt
