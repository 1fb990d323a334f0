// Show Details: the parts of a page that a reader never sees, made visible while it
// is edited, with the document untouched. Boxes get dotted outlines from a sheet of
// our own that the document adopts (no node, no attribute); comments, scripts and
// styles get small labels in an overlay outside the body, which the serializer and
// the history pass over, drawn in a shadow tree so the page's styles cannot reach
// them. The labels follow the page as it changes; as they sit in the document's
// coordinates, they scroll with it by themselves.
//
// What lasts between calls lives in window.ztDetailsState.

const ztDetailsOutlines = `
table, td, th, div, form,
span[style*="absolute" i], span[style*="relative" i], span[style*="fixed" i] {
    outline: 1px dotted #8a8a8a !important;
    outline-offset: -1px !important;
}`;

const ztDetailsLook = `
:host {
    all: initial;
    position: absolute; left: 0; top: 0; width: 0; height: 0;
    overflow: visible; pointer-events: none; user-select: none; z-index: 2147483647;
}
span {
    position: absolute; box-sizing: border-box; height: 14px; transform: translateY(-10px);
    font: 10px/12px sans-serif; white-space: nowrap;
    padding: 0 3px; border: 1px solid; border-radius: 3px; opacity: 0.9;
}
.comment { background: #fff6c2; color: #5e5000; border-color: #cdb54a; }
.script { background: #e2ebff; color: #1d3c85; border-color: #8aa3dd; }
.style { background: #f0e4ff; color: #54247f; border-color: #b290dc; }`;

const ztLabelWords = 4;
const ztLabelLength = 28;

function ztDetails() {
    if (!window.ztDetailsState) {
        const outlines = new CSSStyleSheet();
        outlines.replaceSync(ztDetailsOutlines);
        window.ztDetailsState = {on: false, outlines, host: null, observer: null, pending: false};
    }
    return window.ztDetailsState;
}

function ztDetailLabel(node) {
    if (node.nodeType !== Node.COMMENT_NODE)
        return {kind: node.localName, text: '<' + node.localName + '>'};
    const words = node.data.trim().split(/\s+/).filter(word => word !== '');
    let text = words.slice(0, ztLabelWords).join(' ');
    if (text.length > ztLabelLength)
        text = text.slice(0, ztLabelLength - 1).trimEnd() + '\u2026';
    else if (words.length > ztLabelWords)
        text += ' \u2026';
    return {kind: 'comment', text: text === '' ? '<!-- -->' : '<!-- ' + text + ' -->'};
}

// A box placed by its own coordinates says nothing about where its neighbours are.
function ztOutOfFlow(element) {
    const position = getComputedStyle(element).position;
    return position === 'absolute' || position === 'fixed';
}

// Where a node shows on screen (a mark stands on that spot, mostly above it so as
// to leave the text there readable): the start of the first thing after it that has a
// box, else the end of the last thing before it, else its parent's corner.
function ztShownRect(node, first) {
    let rects = [];
    if (node.nodeType === Node.TEXT_NODE && node.data.trim() !== '') {
        const range = document.createRange();
        range.selectNodeContents(node);
        rects = Array.from(range.getClientRects());
    } else if (node.nodeType === Node.ELEMENT_NODE && !ztOutOfFlow(node)) {
        rects = Array.from(node.getClientRects());
    }
    rects = rects.filter(rect => rect.width > 0 || rect.height > 0);
    return rects.length ? rects[first ? 0 : rects.length - 1] : null;
}

function ztSpotOf(node) {
    for (let next = node.nextSibling; next; next = next.nextSibling) {
        const rect = ztShownRect(next, true);
        if (rect)
            return {x: rect.left, y: rect.top};
    }
    for (let before = node.previousSibling; before; before = before.previousSibling) {
        const rect = ztShownRect(before, false);
        if (rect)
            return {x: rect.right, y: rect.top};
    }
    const rect = node.parentElement.getBoundingClientRect();
    return {x: rect.left, y: rect.top};
}

function ztHiddenNodes() {
    const nodes = [];
    const walker = document.createTreeWalker(
        document.body, NodeFilter.SHOW_COMMENT | NodeFilter.SHOW_ELEMENT, node =>
            node.nodeType === Node.COMMENT_NODE || node.localName === 'script' ||
                    node.localName === 'style'
                ? NodeFilter.FILTER_ACCEPT
                : NodeFilter.FILTER_SKIP);
    for (let node = walker.nextNode(); node; node = walker.nextNode())
        nodes.push(node);
    return nodes;
}

function ztDrawDetails(details) {
    details.pending = false;
    if (!details.on || !document.body)
        return;
    if (!details.host) {
        details.host = document.createElement('zt-details');
        // Out of reach of the caret in a page in design mode.
        details.host.setAttribute('contenteditable', 'false');
        // The look comes first: the overlay is measured before its marks go in.
        const look = document.createElement('style');
        look.textContent = ztDetailsLook;
        details.host.attachShadow({mode: 'open'}).appendChild(look);
    }
    const host = details.host;
    if (host.parentNode !== document.documentElement)
        document.documentElement.appendChild(host);
    const look = host.shadowRoot.firstChild;
    const origin = host.getBoundingClientRect();
    const marks = ztHiddenNodes().map(node => {
        const label = ztDetailLabel(node);
        const spot = ztSpotOf(node);
        const mark = document.createElement('span');
        mark.className = label.kind;
        mark.textContent = label.text;
        mark.style.left = Math.round(spot.x - origin.left) + 'px';
        mark.style.top = Math.round(spot.y - origin.top) + 'px';
        return mark;
    });
    host.shadowRoot.replaceChildren(look, ...marks);
}

function ztRedrawDetailsSoon(details) {
    if (details.pending || !details.on)
        return;
    details.pending = true;
    setTimeout(() => ztDrawDetails(details), 0);
}

// Our own overlay going in or out is no change of the page.
function ztChangesPage(record) {
    if (ztIsOwn(record.target))
        return false;
    return record.type !== 'childList' ||
        Array.from(record.addedNodes).concat(Array.from(record.removedNodes))
            .some(node => !ztIsOwn(node));
}

// args: on, whether the details show.
function ztSetDetails(args) {
    const details = ztDetails();
    details.on = args.on;
    ztAdopt(details.outlines, details.on);
    if (!details.observer) {
        details.observer = new MutationObserver(records => {
            if (records.some(ztChangesPage))
                ztRedrawDetailsSoon(details);
        });
        window.addEventListener('resize', () => ztRedrawDetailsSoon(details));
        // An image that arrives moves what follows it.
        window.addEventListener('load', () => ztRedrawDetailsSoon(details), true);
    }
    details.observer.disconnect();
    if (details.on) {
        details.observer.observe(document, {
            subtree: true, childList: true, characterData: true, attributes: true});
        ztDrawDetails(details);
    } else if (details.host) {
        details.host.remove();
    }
}
