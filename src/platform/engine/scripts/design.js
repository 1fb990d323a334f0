// A design surface, as the form designer and the Layout Manager use the page: a
// click selects an element (a thin frame with eight square handles), a drag moves
// it, a handle resizes it, the cursor keys nudge it, and a second click on the
// selected element puts a caret in its text. Every outcome is the element's inline
// left, top, width and height; an element that had no position is taken out of
// the flow as position: absolute, where it stood, within its positioned parent.
// Each move, resize or nudge is one step of the page's history.
//
// The frame and handles are drawn in a <zt-design> overlay outside the body, in a
// shadow tree, so the serializer and the history pass over them. While an element
// is selected the page's selection holds it whole, so that the program's Cut, Copy,
// Delete and stacking commands act on it.
//
// What lasts between calls lives in window.ztDesignState; the listeners are
// installed once per document and read it on every event.

const ztHandleSize = 7;
const ztDragStart = 3;
const ztHandleEdges = ['nw', 'n', 'ne', 'e', 'se', 's', 'sw', 'w'];
const ztNudgeKeys = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1]};
// Elements chosen whole by a click anywhere on them, rather than the part inside.
const ztWholeElements = new Set([
    'input', 'select', 'textarea', 'button', 'img', 'table', 'hr', 'iframe', 'object', 'embed',
    'fieldset', 'marquee',
]);
// Elements a drop may go into.
const ztDropContainers = new Set(['div', 'form', 'fieldset', 'td', 'th', 'li']);

const ztDesignLook = `
:host {
    all: initial;
    position: absolute; left: 0; top: 0; width: 0; height: 0;
    overflow: visible; pointer-events: none; user-select: none; z-index: 2147483647;
}
div { position: absolute; box-sizing: border-box; }
.frame { border: 1px solid #2b57a7; }
.frame.editing { border: 1px dashed #2b57a7; }
.handle {
    width: ${ztHandleSize}px; height: ${ztHandleSize}px;
    background: #2b57a7; border: 1px solid #ffffff; outline: 1px solid #2b57a7;
    pointer-events: auto;
}
.frame.editing ~ .handle { display: none; }
.n, .s { cursor: ns-resize; }
.e, .w { cursor: ew-resize; }
.nw, .se { cursor: nwse-resize; }
.ne, .sw { cursor: nesw-resize; }`;

// While the page is designed, not typed into: an arrow over everything, and no
// highlight of the selection that holds the selected element.
const ztDesigningLook = `
html, body, body * { cursor: default !important; }
*::selection { background: transparent !important; }`;

function ztDesign() {
    if (!window.ztDesignState) {
        const designing = new CSSStyleSheet();
        designing.replaceSync(ztDesigningLook);
        const gestureCursor = new CSSStyleSheet();
        const design = {
            on: false, snap: false, selected: null, editing: null, gesture: null, host: null,
            pending: false, designing, gestureCursor,
        };
        // The frame follows the element through edits, undo and redo.
        design.observer = new MutationObserver(records => {
            if (records.some(ztChangesPage))
                ztRedrawFrameSoon(design);
        });
        window.ztDesignState = design;
    }
    return window.ztDesignState;
}

function ztInBody(node) {
    return !!document.body && node !== document.body && document.body.contains(node);
}

function ztDesignSnapped(design, value) {
    return design.snap ? Math.round(value / ztGridStep) * ztGridStep : Math.round(value);
}

// The deepest element of the page under a point, or null over the bare page.
function ztElementAt(x, y) {
    for (const element of document.elementsFromPoint(x, y)) {
        if (!ztInOwnElement(element))
            return ztInBody(element) ? element : null;
    }
    return null;
}

// What a click on an element selects: the box or field it belongs to.
function ztDesignedElement(hit) {
    for (let at = hit; at && at !== document.body; at = at.parentElement) {
        if (ztWholeElements.has(at.localName) || ztIsPositioned(at))
            return at;
    }
    return hit;
}

function ztCanEditInPlace(element) {
    return !ztVoidElements.has(element.localName) && element.localName !== 'select' &&
           element.localName !== 'textarea';
}

// The element's place and size as numbers, after giving it a position of its own
// when it had none: absolute, left and top where it stands now.
function ztPlacedBox(element) {
    if (getComputedStyle(element).position === 'static') {
        const before = element.getBoundingClientRect();
        element.style.position = 'absolute';
        element.style.left = '0px';
        element.style.top = '0px';
        const origin = element.getBoundingClientRect();
        element.style.left = Math.round(before.left - origin.left) + 'px';
        element.style.top = Math.round(before.top - origin.top) + 'px';
    }
    const style = getComputedStyle(element);
    return {
        left: parseFloat(style.left) || 0,
        top: parseFloat(style.top) || 0,
        width: parseFloat(style.width) || 0,
        height: parseFloat(style.height) || 0,
    };
}

// Puts an element's top left corner on a point of the window.
function ztPlaceAt(design, element, x, y) {
    if (getComputedStyle(element).position === 'static')
        element.style.position = 'absolute';
    // A field with no box (a hidden one) has no place to be given.
    if (!element.getClientRects().length)
        return;
    element.style.left = '0px';
    element.style.top = '0px';
    const origin = element.getBoundingClientRect();
    element.style.left = ztDesignSnapped(design, x - origin.left) + 'px';
    element.style.top = ztDesignSnapped(design, y - origin.top) + 'px';
}

function ztMakeOverlay() {
    const host = document.createElement('zt-design');
    // Out of reach of the caret in a page in design mode.
    host.setAttribute('contenteditable', 'false');
    const shadow = host.attachShadow({mode: 'open'});
    const look = document.createElement('style');
    look.textContent = ztDesignLook;
    const frame = document.createElement('div');
    frame.className = 'frame';
    shadow.append(look, frame);
    for (const edge of ztHandleEdges) {
        const handle = document.createElement('div');
        handle.className = 'handle ' + edge;
        handle.dataset.edge = edge;
        shadow.append(handle);
    }
    return host;
}

function ztDrawFrame(design) {
    design.pending = false;
    const element = design.selected;
    if (element && (!design.on || !ztInBody(element)))
        design.selected = design.editing = null;
    if (!design.selected) {
        if (design.host)
            design.host.remove();
        return;
    }
    if (!design.host)
        design.host = ztMakeOverlay();
    const host = design.host;
    if (host.parentNode !== document.documentElement)
        document.documentElement.appendChild(host);
    const origin = host.getBoundingClientRect();
    const rect = element.getBoundingClientRect();
    const left = Math.round(rect.left - origin.left);
    const top = Math.round(rect.top - origin.top);
    const width = Math.max(1, Math.round(rect.width));
    const height = Math.max(1, Math.round(rect.height));
    const frame = host.shadowRoot.querySelector('.frame');
    frame.classList.toggle('editing', design.editing !== null);
    Object.assign(
        frame.style,
        {left: left + 'px', top: top + 'px', width: width + 'px', height: height + 'px'});
    // Each handle is centred on a corner or on the middle of a side of the frame.
    const half = Math.floor(ztHandleSize / 2);
    const across = edge => (edge.includes('w') ? 0 : edge.includes('e') ? width - 1 : width >> 1);
    const down = edge => (edge.includes('n') ? 0 : edge.includes('s') ? height - 1 : height >> 1);
    for (const handle of host.shadowRoot.querySelectorAll('.handle')) {
        handle.style.left = left + across(handle.dataset.edge) - half + 'px';
        handle.style.top = top + down(handle.dataset.edge) - half + 'px';
    }
}

function ztRedrawFrameSoon(design) {
    if (design.pending)
        return;
    design.pending = true;
    setTimeout(() => ztDrawFrame(design), 0);
}

function ztDesignSelect(design, element) {
    design.selected = element;
    design.editing = null;
    ztAdopt(design.designing, design.on);
    if (element) {
        const range = document.createRange();
        range.selectNode(element);
        ztSelect(range);
    } else {
        window.getSelection().removeAllRanges();
    }
    ztDrawFrame(design);
}

function ztDesignEdit(design, element, x, y) {
    design.editing = element;
    ztAdopt(design.designing, false);
    let range = document.caretRangeFromPoint(x, y);
    if (!range || !element.contains(range.startContainer)) {
        range = document.createRange();
        range.selectNodeContents(element);
        range.collapse(false);
    }
    ztSelect(range);
    ztDrawFrame(design);
}

function ztStopEvent(event) {
    event.preventDefault();
    event.stopImmediatePropagation();
}

function ztDesigning(design) { return design.on && document.designMode === 'on'; }

function ztDesignPressed(event) {
    const design = ztDesign();
    if (event.button !== 0 || !ztDesigning(design))
        return;
    const x = event.clientX;
    const y = event.clientY;
    const target = event.composedPath()[0];
    const edge = target && target.dataset ? target.dataset.edge : undefined;
    if (edge && design.selected && !design.editing) {
        ztStopEvent(event);
        design.gesture = {edge, element: design.selected, x, y, started: false};
        return;
    }
    const hit = ztElementAt(x, y);
    // Text being edited in place takes its clicks as any text does.
    if (design.editing && hit && design.editing.contains(hit))
        return;
    ztStopEvent(event);
    const element = hit ? ztDesignedElement(hit) : null;
    const again = element !== null && element === design.selected && !design.editing;
    ztDesignSelect(design, element);
    if (element)
        design.gesture = {edge: null, element, x, y, again, started: false};
}

function ztDesignMoved(event) {
    const design = ztDesign();
    const gesture = design.gesture;
    if (!gesture)
        return;
    ztStopEvent(event);
    const dx = event.clientX - gesture.x;
    const dy = event.clientY - gesture.y;
    if (!gesture.started) {
        if (Math.abs(dx) < ztDragStart && Math.abs(dy) < ztDragStart)
            return;
        gesture.started = true;
        ztCloseUserStep(ztHistory());
        gesture.style = ztAttribute(gesture.element, 'style');
        gesture.from = ztPlacedBox(gesture.element);
        const handle = gesture.edge && design.host.shadowRoot.querySelector('.' + gesture.edge);
        const cursor = handle ? getComputedStyle(handle).cursor : 'move';
        design.gestureCursor.replaceSync(`* { cursor: ${cursor} !important; }`);
        ztAdopt(design.gestureCursor, true);
    }
    const style = gesture.element.style;
    const from = gesture.from;
    const edge = gesture.edge || '';
    if (!gesture.edge) {
        style.left = ztDesignSnapped(design, from.left + dx) + 'px';
        style.top = ztDesignSnapped(design, from.top + dy) + 'px';
    }
    // Each side of the box moves with its handle; the opposite side stays put.
    const sides = [['e', 'w', 'left', 'width', dx], ['s', 'n', 'top', 'height', dy]];
    for (const [far, near, place, size, delta] of sides) {
        if (edge.includes(far)) {
            style[size] = Math.max(1, ztDesignSnapped(design, from[size] + delta)) + 'px';
        } else if (edge.includes(near)) {
            const end = from[place] + from[size];
            const start = Math.min(ztDesignSnapped(design, from[place] + delta), end - 1);
            style[place] = start + 'px';
            style[size] = end - start + 'px';
        }
    }
    // The steps on the way are not the page's history; the release records the
    // whole gesture as one.
    ztHistory().observer.takeRecords();
    ztDrawFrame(design);
}

function ztDesignReleased(event) {
    const design = ztDesign();
    const gesture = design.gesture;
    if (!gesture)
        return;
    design.gesture = null;
    ztStopEvent(event);
    if (gesture.started) {
        const element = gesture.element;
        const style = ztAttribute(element, 'style');
        ztSetAttribute(element, 'style', gesture.style);
        ztHistory().observer.takeRecords();
        ztRecorded(() => ztSetAttribute(element, 'style', style));
        ztAdopt(design.gestureCursor, false);
    } else if (gesture.again && ztCanEditInPlace(gesture.element)) {
        ztDesignEdit(design, gesture.element, event.clientX, event.clientY);
    }
}

// With snap on a nudge goes to the next grid line on that side.
function ztNudged(design, value, step) {
    if (!design.snap)
        return value + step;
    const line = (step > 0 ? Math.floor : Math.ceil)(value / ztGridStep) * ztGridStep;
    return line + step * ztGridStep;
}

function ztDesignKey(event) {
    const design = ztDesign();
    if (!ztDesigning(design) || !design.selected)
        return;
    if (design.editing) {
        if (event.key === 'Escape') {
            ztStopEvent(event);
            ztDesignSelect(design, design.editing);
        }
        return;
    }
    const step = ztNudgeKeys[event.key];
    if (!step || event.ctrlKey || event.altKey || event.metaKey)
        return;
    ztStopEvent(event);
    const element = design.selected;
    ztRecorded(() => {
        const box = ztPlacedBox(element);
        if (step[0])
            element.style.left = ztNudged(design, box.left, step[0]) + 'px';
        if (step[1])
            element.style.top = ztNudged(design, box.top, step[1]) + 'px';
    });
    ztDrawFrame(design);
}

// Outside in-place editing nothing is typed into the page: the selection holds a
// whole element, which a key would replace. The delete keys remove it, and the
// history's own undo and redo pass.
function ztDesignInput(event) {
    const design = ztDesign();
    if (!ztDesigning(design) || design.editing || event.inputType.startsWith('delete') ||
        event.inputType.startsWith('history'))
        return;
    if (design.selected || event.inputType.startsWith('insert') ||
        event.inputType.startsWith('format'))
        event.preventDefault();
}

// args: on, whether the page is a design surface; snap, whether places and sizes
// land on the grid.
function ztSetDesign(args) {
    const design = ztDesign();
    design.snap = args.snap;
    design.on = args.on;
    design.gesture = null;
    ztAdopt(design.gestureCursor, false);
    if (!design.on)
        design.selected = design.editing = null;
    ztAdopt(design.designing, design.on && !design.editing);
    if (!window.ztDesignListening) {
        window.ztDesignListening = true;
        window.addEventListener('mousedown', ztDesignPressed, true);
        window.addEventListener('mousemove', ztDesignMoved, true);
        window.addEventListener('mouseup', ztDesignReleased, true);
        window.addEventListener('keydown', ztDesignKey, true);
        window.addEventListener('beforeinput', ztDesignInput, true);
        // No browser drag of a selection or an image out of a designed page.
        window.addEventListener('dragstart', event => {
            if (ztDesigning(ztDesign()))
                event.preventDefault();
        }, true);
        window.addEventListener('resize', () => ztRedrawFrameSoon(ztDesign()));
        // A box that scrolls inside another takes its frame along.
        window.addEventListener('scroll', () => ztRedrawFrameSoon(ztDesign()), true);
    }
    design.observer.disconnect();
    if (design.on)
        design.observer.observe(document, {
            subtree: true, childList: true, characterData: true, attributes: true});
    ztDrawFrame(design);
}

// A drop from a strip: its content lands at the point, inside the box there. One
// element goes in as it is; several things go in together in a <div>, so that they
// keep their places to one another.
function ztDropContainer(x, y) {
    const hit = ztElementAt(x, y);
    for (let at = hit; at && at !== document.body; at = at.parentElement) {
        if (ztDropContainers.has(at.localName) || (at.localName === 'span' && ztIsPositioned(at)))
            return at;
    }
    return document.body;
}

Object.assign(ztCommands, {
    // What a strip holds, to be dropped elsewhere.
    stripContent(args) {
        if (!document.body ||
            ztIsBlank(document.body.textContent) && !document.body.querySelector('*'))
            return {ok: false};
        const writer = ztWriter({givenGenerators: args.givenGenerators});
        return {ok: true, html: writer.nodes(document.body)};
    },
    // args: html, x and y in the window.
    dropAt(args) {
        if (!document.body)
            return {ok: false};
        const holder = document.createElement('template');
        holder.innerHTML = args.html;
        const nodes = Array.from(holder.content.childNodes)
                          .filter(node => node.nodeType !== Node.TEXT_NODE || !ztIsBlank(node.data));
        if (!nodes.length)
            return {ok: false};
        let element;
        if (nodes.length === 1 && nodes[0].nodeType === Node.ELEMENT_NODE) {
            element = document.importNode(nodes[0], true);
        } else {
            element = document.createElement('div');
            element.append(...nodes.map(node => document.importNode(node, true)));
        }
        const design = ztDesign();
        ztDropContainer(args.x, args.y).appendChild(element);
        ztPlaceAt(design, element, args.x, args.y);
        if (ztDesigning(design))
            ztDesignSelect(design, element);
        return {ok: true};
    },
});
ztReadingCommands.add('stripContent');
