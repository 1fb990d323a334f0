// Moving absolutely positioned boxes with the pointer in an editing surface. The
// edge of a box is its handle: within a few pixels of it the pointer becomes a move
// cursor, and a drag from there moves the box by its inline left and top, onto the
// grid when snapping is on. Inside a box the pointer edits its text as usual.
//
// What lasts between calls lives in window.ztMoverState; the listeners are installed
// once per document and read it on every event.

const ztEdgeReach = 6;
const ztGridStep = 10;

function ztMover() {
    if (!window.ztMoverState) {
        // The move cursor is a sheet of our own, switched in and out, so hovering
        // never touches the page's nodes.
        const cursor = new CSSStyleSheet();
        cursor.replaceSync('* { cursor: move !important; }');
        window.ztMoverState = {enabled: false, snap: false, hover: null, drag: null, cursor};
    }
    return window.ztMoverState;
}

function ztNear(rect, x, y, reach) {
    return x >= rect.left - reach && x <= rect.right + reach && y >= rect.top - reach &&
        y <= rect.bottom + reach;
}

// The topmost absolutely positioned box whose edge the point is near, or null.
function ztEdgeAt(x, y) {
    const reach = ztEdgeReach;
    const seen = new Set();
    for (const [dx, dy] of [[0, 0], [-reach, 0], [reach, 0], [0, -reach], [0, reach]]) {
        for (const element of document.elementsFromPoint(x + dx, y + dy)) {
            if (seen.has(element) || !document.body || !document.body.contains(element) ||
                element === document.body)
                continue;
            seen.add(element);
            if (getComputedStyle(element).position !== 'absolute')
                continue;
            const rect = element.getBoundingClientRect();
            if (ztNear(rect, x, y, reach) && !ztNear(rect, x, y, -reach))
                return element;
        }
    }
    return null;
}

function ztSnapped(mover, value) {
    return mover.snap ? Math.round(value / ztGridStep) * ztGridStep : Math.round(value);
}

function ztPointerMoved(event) {
    const mover = ztMover();
    if (mover.drag) {
        const drag = mover.drag;
        drag.element.style.left = ztSnapped(mover, drag.left + event.clientX - drag.x) + 'px';
        drag.element.style.top = ztSnapped(mover, drag.top + event.clientY - drag.y) + 'px';
        event.preventDefault();
        event.stopImmediatePropagation();
        return;
    }
    const hover = mover.enabled && document.designMode === 'on' && !event.buttons
                      ? ztEdgeAt(event.clientX, event.clientY)
                      : null;
    if ((hover === null) !== (mover.hover === null))
        ztAdopt(mover.cursor, hover !== null);
    mover.hover = hover;
}

function ztPointerPressed(event) {
    const mover = ztMover();
    if (event.button !== 0 || !mover.enabled || document.designMode !== 'on')
        return;
    const element = ztEdgeAt(event.clientX, event.clientY);
    if (!element)
        return;
    const style = getComputedStyle(element);
    mover.drag = {
        element,
        x: event.clientX,
        y: event.clientY,
        left: parseFloat(style.left) || 0,
        top: parseFloat(style.top) || 0,
    };
    // No caret and no text selection start under a drag.
    event.preventDefault();
    event.stopImmediatePropagation();
}

function ztPointerReleased(event) {
    const mover = ztMover();
    if (!mover.drag)
        return;
    mover.drag = null;
    event.preventDefault();
    event.stopImmediatePropagation();
}

// args: enabled, whether boxes may be moved; snap, whether they land on the grid.
function ztSetMover(args) {
    const mover = ztMover();
    mover.enabled = args.enabled;
    mover.snap = args.snap;
    // A new page, or a surface that stops moving boxes, starts with no drag.
    mover.drag = null;
    mover.hover = null;
    ztAdopt(mover.cursor, false);
    if (!window.ztMoverListening) {
        window.ztMoverListening = true;
        window.addEventListener('mousemove', ztPointerMoved, true);
        window.addEventListener('mousedown', ztPointerPressed, true);
        window.addEventListener('mouseup', ztPointerReleased, true);
    }
}
