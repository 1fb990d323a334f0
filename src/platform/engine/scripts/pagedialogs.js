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

// The text of the body as the user reads it, for finding: runs of white space as one
// blank, and a line break wherever text leaves one block for another or meets a
// picture or a line break; so a word split by bold matches, two paragraphs do not.
// at[i] is the text node and offset of the character i stands for.
const ztSkippedInFind = new Set(['script', 'style', 'noscript', 'template', 'textarea', 'select',
                                 'object', 'iframe']);

function ztPageText(matchCase) {
    const blocks = new Map();
    const blockOf = element => {
        let block = blocks.get(element);
        if (block === undefined) {
            const display = getComputedStyle(element).display;
            block = element === document.body || !display.startsWith('inline')
                ? element : blockOf(element.parentElement);
            blocks.set(element, block);
        }
        return block;
    };
    const chars = [];
    const at = [];
    let lastBlock = null;
    const breakLine = () => {
        if (chars.length && chars[chars.length - 1] !== '\n') {
            chars.push('\n');
            at.push(null);
        }
    };
    const walker = document.createTreeWalker(document.body,
                                             NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_TEXT, {
        acceptNode: node => node.nodeType === Node.ELEMENT_NODE &&
            ztSkippedInFind.has(node.localName) ? NodeFilter.FILTER_REJECT
                                                : NodeFilter.FILTER_ACCEPT,
    });
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        if (node.nodeType === Node.ELEMENT_NODE) {
            if (ztVoidElements.has(node.localName))
                breakLine();
            continue;
        }
        const block = blockOf(node.parentElement);
        if (block !== lastBlock)
            breakLine();
        lastBlock = block;
        const data = node.data;
        for (let i = 0; i < data.length; ++i) {
            let c = data[i];
            if (/[ \t\n\r\f\u00a0]/.test(c)) {
                const last = chars[chars.length - 1];
                if (last === ' ' || last === '\n' || last === undefined)
                    continue;
                c = ' ';
            } else if (!matchCase) {
                const lower = c.toLowerCase();
                c = lower.length === 1 ? lower : c;
            }
            chars.push(c);
            at.push([node, i]);
        }
    }
    return {text: chars.join(''), at};
}

// How many characters of the page text lie before a point of the page.
function ztCharsBefore(page, container, offset) {
    const point = document.createRange();
    point.setStart(container, offset);
    let low = 0;
    let high = page.at.length;
    while (low < high) {
        const middle = (low + high) >> 1;
        let probe = middle;
        while (probe < high && !page.at[probe])
            ++probe;
        if (probe === high) {
            high = middle;
        } else if (point.comparePoint(page.at[probe][0], page.at[probe][1]) < 0) {
            low = probe + 1;
        } else {
            high = middle;
        }
    }
    return low;
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
            needle = Array.from(needle, c => c.toLowerCase().length === 1 ? c.toLowerCase() : c)
                         .join('');
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
        const first = page.at[found];
        const last = page.at[found + needle.length - 1];
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
