// The page's side of the engine's own dialogs for font, picture, link and find:
// each dialog first reads what the selection holds, then applies what the user
// chose in one edit. Finding only moves the selection.

function ztHolderOf(node) {
    return node.nodeType === Node.ELEMENT_NODE ? node : node.parentNode;
}

// The one picture a selection covers exactly, or null.
function ztSelectedImage(range) {
    if (range.collapsed || range.startContainer !== range.endContainer ||
        range.endOffset !== range.startOffset + 1)
        return null;
    const node = range.startContainer.childNodes[range.startOffset];
    return node && node.localName === 'img' ? node : null;
}

// The link around the start of the selection, else the first link inside it.
function ztLinkAt(range) {
    const around = ztHolderOf(range.startContainer).closest('a[href]');
    if (around || range.collapsed)
        return around;
    const walker = document.createTreeWalker(range.commonAncestorContainer,
                                             NodeFilter.SHOW_ELEMENT);
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        if (node.localName === 'a' && node.hasAttribute('href') && range.intersectsNode(node))
            return node;
    }
    return null;
}

// The selection, or a caret at the start of the body when the page has none.
function ztWorkingRange() {
    let range = ztSelectionRange();
    if (!range) {
        range = document.createRange();
        range.setStart(document.body, 0);
    }
    return range;
}

// Puts node in place of the selection, with the caret behind it.
function ztInsertInPlace(range, node) {
    range.deleteContents();
    range.insertNode(node);
    range.setStartAfter(node);
    range.collapse(true);
    ztSelect(range);
}

// The first family of a font list, without its quotes.
function ztFirstFamily(list) {
    const first = (list || '').split(',')[0].trim();
    return first.replace(/^(["'])(.*)\1$/, '$2');
}

// What finding passes over: text the user does not read as the page's.
const ztSkippedInFind = new Set(['script', 'style', 'noscript', 'template', 'textarea', 'select',
                                 'object', 'iframe']);

const ztFoldedSpace = /[\t\n\r\f\u00a0]| {2}/;

// Lower case that keeps every character in its place, so that offsets still hold.
function ztLowerCase(data) {
    const lower = data.toLowerCase();
    if (lower.length === data.length)
        return lower;
    return Array.from(data, c => c.toLowerCase().length === 1 ? c.toLowerCase() : c).join('');
}

// Leaves the walker on the last node inside its current node, so that the next
// step goes past that node's content.
function ztPastContent(walker) {
    while (walker.lastChild())
        continue;
}

// The text of the body as the user reads it, for finding: runs of white space as one
// blank, and a line break wherever text leaves one block for another or meets a
// picture or a line break; so a word split by bold matches, two paragraphs do not.
// Each text node is a segment: where its characters start in the text, and the
// offset in the node of each character kept.
function ztPageText(matchCase) {
    // The inline elements go by name: asking the engine for every element's style
    // costs seconds on a large page.
    const blockOf = element => {
        while (element !== document.body && ztInlineElements.has(element.localName))
            element = element.parentElement;
        return element;
    };
    const pieces = [];
    const segments = [];
    const segmentOf = new Map();
    let length = 0;
    let last = '\n';
    let lastBlock = null;
    const breakLine = () => {
        if (last !== '\n') {
            pieces.push('\n');
            ++length;
            last = '\n';
        }
    };
    // No filter on the walker: a call into a filter for every node costs seconds on
    // a large page.
    const walker =
        document.createTreeWalker(document.body, NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT);
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        if (node.nodeType === Node.ELEMENT_NODE) {
            if (ztSkippedInFind.has(node.localName))
                ztPastContent(walker);
            else if (ztVoidElements.has(node.localName))
                breakLine();
            continue;
        }
        const block = blockOf(node.parentElement);
        if (block !== lastBlock)
            breakLine();
        lastBlock = block;
        const data = matchCase ? node.data : ztLowerCase(node.data);
        // Most text has no white space to fold: it is kept as it stands, and its
        // segment has no offsets.
        let offsets = null;
        let kept = data;
        if (ztFoldedSpace.test(data) || (data[0] === ' ' && (last === ' ' || last === '\n'))) {
            offsets = [];
            kept = '';
            for (let i = 0; i < data.length; ++i) {
                const code = data.charCodeAt(i);
                if (code === 32 || code === 9 || code === 10 || code === 13 || code === 12 ||
                    code === 160) {
                    if (last === ' ' || last === '\n')
                        continue;
                    last = ' ';
                } else {
                    last = data[i];
                }
                kept += last;
                offsets.push(i);
            }
        } else if (data) {
            last = data[data.length - 1];
        }
        segmentOf.set(node, segments.length);
        segments.push({node, start: length, offsets});
        pieces.push(kept);
        length += kept.length;
    }
    return {text: pieces.join(''), segments, segmentOf};
}

// The text node and offset of character at of the page text.
function ztPointOf(page, at) {
    let low = 0;
    let high = page.segments.length - 1;
    while (low < high) {
        const middle = (low + high + 1) >> 1;
        if (page.segments[middle].start <= at)
            low = middle;
        else
            high = middle - 1;
    }
    const segment = page.segments[low];
    const index = at - segment.start;
    return [segment.node, segment.offsets ? segment.offsets[index] : index];
}

// How many characters of the page text lie before a point of the page.
function ztCharsBefore(page, container, offset) {
    const own = page.segmentOf.get(container);
    if (own !== undefined) {
        const segment = page.segments[own];
        return segment.start + (segment.offsets ? segment.offsets.filter(at => at < offset).length
                                                : Math.min(offset, segment.node.length));
    }
    // Otherwise the point lies between nodes: count the text nodes before it.
    const point = document.createRange();
    point.setStart(container, offset);
    let low = 0;
    let high = page.segments.length;
    while (low < high) {
        const middle = (low + high) >> 1;
        if (point.comparePoint(page.segments[middle].node, 0) < 0)
            low = middle + 1;
        else
            high = middle;
    }
    if (!low)
        return 0;
    const before = page.segments[low - 1];
    return before.start + (before.offsets ? before.offsets : before.node.data).length;
}

function ztIsWordChar(c) {
    return c !== undefined && /[\p{L}\p{N}_]/u.test(c);
}

Object.assign(ztCommands, {
    fontState() {
        const range = ztSelectionRange();
        if (!document.body || !range || range.collapsed)
            return {ok: false};
        return {
            ok: true,
            face: ztFirstFamily(document.queryCommandValue('fontName')),
            size: document.queryCommandValue('fontSize'),
            color: ztHexColours(document.queryCommandValue('foreColor')),
        };
    },
    // args: face, size, color, each only when the user changed it.
    applyFont(args) {
        let ok = false;
        for (const [name, key] of [['fontName', 'face'], ['fontSize', 'size'],
                                   ['foreColor', 'color']]) {
            if (args[key] !== undefined && !ztNative(name, args[key]).ok)
                return {ok: false};
            ok = ok || args[key] !== undefined;
        }
        return {ok};
    },
    imageState() {
        if (!document.body)
            return {ok: false};
        const image = ztSelectedImage(ztWorkingRange());
        if (!image)
            return {ok: true, image: false};
        const state = {ok: true, image: true};
        for (const name of ['src', 'alt', 'width', 'height'])
            state[name] = image.getAttribute(name) || '';
        return state;
    },
    // args: src, alt, width, height; a blank one is left out, or taken off the
    // picture being edited.
    applyImage(args) {
        if (!document.body || !args.src)
            return {ok: false};
        const range = ztWorkingRange();
        const image = ztSelectedImage(range) || document.createElement('img');
        for (const name of ['src', 'alt', 'width', 'height']) {
            if (args[name])
                image.setAttribute(name, args[name]);
            else
                image.removeAttribute(name);
        }
        if (!image.isConnected)
            ztInsertInPlace(range, image);
        return {ok: true};
    },
    linkState() {
        const range = ztSelectionRange();
        if (!document.body || !range)
            return {ok: false};
        const link = ztLinkAt(range);
        return {ok: true, href: link ? link.getAttribute('href') : ''};
    },
    // A selection becomes a link, a caret in a link changes where it goes, and a
    // caret elsewhere gets a link that shows its own address.
    applyLink(args) {
        const range = ztSelectionRange();
        if (!document.body || !range || !args.href)
            return {ok: false};
        if (!range.collapsed)
            return ztNative('createLink', args.href);
        const around = ztHolderOf(range.startContainer).closest('a[href]');
        if (around) {
            around.setAttribute('href', args.href);
        } else {
            const link = document.createElement('a');
            link.setAttribute('href', args.href);
            link.textContent = args.href;
            ztInsertInPlace(range, link);
        }
        return {ok: true};
    },
    // args: text, matchCase, wholeWord, up. Selects the next match after the
    // selection (before it, going up), going round the page once; {found: false}
    // leaves the selection as it was.
    findText(args) {
        if (!document.body)
            return {ok: false};
        let needle = args.text.replace(/[ \t\n\r\f\u00a0]+/g, ' ');
        if (!args.matchCase)
            needle = ztLowerCase(needle);
        if (!needle)
            return {ok: true, found: false};
        const page = ztPageText(args.matchCase);
        const text = page.text;
        const whole = at => !args.wholeWord ||
            (!ztIsWordChar(text[at - 1]) && !ztIsWordChar(text[at + needle.length]));
        const range = ztWorkingRange();
        const matches = [];
        for (let at = text.indexOf(needle); at >= 0; at = text.indexOf(needle, at + 1)) {
            if (whole(at))
                matches.push(at);
        }
        if (!matches.length)
            return {ok: true, found: false};
        let found;
        if (args.up) {
            const before = ztCharsBefore(page, range.startContainer, range.startOffset);
            found = matches.filter(at => at < before).pop();
            found = found === undefined ? matches[matches.length - 1] : found;
        } else {
            const after = ztCharsBefore(page, range.endContainer, range.endOffset);
            found = matches.find(at => at >= after);
            found = found === undefined ? matches[0] : found;
        }
        const first = ztPointOf(page, found);
        const last = ztPointOf(page, found + needle.length - 1);
        const match = document.createRange();
        match.setStart(first[0], first[1]);
        match.setEnd(last[0], last[1] + 1);
        ztSelect(match);
        ztHolderOf(first[0]).scrollIntoView({block: 'nearest', inline: 'nearest'});
        return {ok: true, found: true};
    },
});

for (const name of ['fontState', 'imageState', 'linkState', 'findText'])
    ztReadingCommands.add(name);
