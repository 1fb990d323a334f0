// The stacking order of positioned elements. Each command works on one element:
// the one the selection holds, or else the positioned box the selection lies in,
// and changes nothing but that element's inline z-index. A z-index of auto stacks
// with the text flow, as 0 does.

function ztIsPositioned(element) {
    const position = getComputedStyle(element).position;
    return position === 'absolute' || position === 'relative' || position === 'fixed';
}

function ztZIndex(element) {
    return parseInt(getComputedStyle(element).zIndex, 10) || 0;
}

// The element a selection holds whole, as a click on a box or an image selects it.
function ztWrappedElement(range) {
    if (range.startContainer !== range.endContainer || range.endOffset !== range.startOffset + 1)
        return null;
    const node = range.startContainer.childNodes[range.startOffset];
    return node && node.nodeType === Node.ELEMENT_NODE ? node : null;
}

function ztStackedElement() {
    const range = ztSelectionRange();
    if (!range || !document.body)
        return null;
    const start = ztWrappedElement(range) || range.startContainer;
    let element = start.nodeType === Node.ELEMENT_NODE ? start : start.parentElement;
    for (; element && element !== document.body; element = element.parentElement) {
        if (ztIsPositioned(element))
            return document.body.contains(element) ? element : null;
    }
    return null;
}

// The highest or lowest z-index among the page's other positioned elements, the
// text flow's 0 among them, so that the front is always above the text.
function ztOuterZIndex(element, pick) {
    let outer = 0;
    for (const other of document.body.querySelectorAll('*')) {
        if (other !== element && ztIsPositioned(other))
            outer = pick(outer, ztZIndex(other));
    }
    return outer;
}

// Each rule: the new z-index from the element's present one and the element.
function ztRestack(rule) {
    const element = ztStackedElement();
    if (!element)
        return {ok: false};
    const present = ztZIndex(element);
    const wanted = rule(present, element);
    if (wanted !== present)
        element.style.zIndex = String(wanted);
    return {ok: true};
}

Object.assign(ztCommands, {
    bringToFront: () => ztRestack((z, element) => ztOuterZIndex(element, Math.max) + 1),
    sendToBack: () => ztRestack((z, element) => ztOuterZIndex(element, Math.min) - 1),
    bringForward: () => ztRestack(z => z + 1),
    sendBackward: () => ztRestack(z => z - 1),
    bringAboveText: () => ztRestack(z => (z <= 0 ? 1 : z)),
    sendBelowText: () => ztRestack(z => (z >= 0 ? -1 : z)),
});
