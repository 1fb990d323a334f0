// The clipboard and selection commands of an editing surface. They work on DOM
// ranges rather than through the browser's own editing commands: those restyle
// what they insert and leave placeholders behind, and the program needs a fragment
// to arrive in the page as it was written. Each returns {ok: false} when it does
// not apply, and the engine turns that into a failure of the command.

const ztInlineElements = new Set([
    'a', 'abbr', 'acronym', 'b', 'big', 'cite', 'code', 'del', 'dfn', 'em', 'font', 'i',
    'ins', 'kbd', 'mark', 'q', 's', 'samp', 'small', 'span', 'strike', 'strong', 'sub',
    'sup', 'tt', 'u', 'var',
]);

function ztSelectionRange() {
    const selection = window.getSelection();
    return selection && selection.rangeCount ? selection.getRangeAt(0) : null;
}

function ztSelect(range) {
    const selection = window.getSelection();
    selection.removeAllRanges();
    selection.addRange(range);
}

// True when nothing the user could see lies between two points.
function ztNothingBetween(startContainer, startOffset, endContainer, endOffset) {
    const between = document.createRange();
    between.setStart(startContainer, startOffset);
    between.setEnd(endContainer, endOffset);
    if (between.collapsed)
        return true;
    const content = between.cloneContents();
    return content.textContent === '' &&
        !content.querySelector('img, br, hr, input, select, textarea, iframe, object, embed, table');
}

// A selection that covers all of an element takes the element along, as a copy
// from a page would: a selected bold word is copied and cut as <b>word</b>.
function ztWidened(range) {
    const wide = range.cloneRange();
    for (;;) {
        const common = wide.commonAncestorContainer;
        const element = common.nodeType === Node.ELEMENT_NODE ? common : common.parentNode;
        if (!element || element === document.body || element === document.documentElement)
            return wide;
        const whole = document.createRange();
        whole.selectNodeContents(element);
        if (!ztNothingBetween(whole.startContainer, whole.startOffset, wide.startContainer,
                              wide.startOffset) ||
            !ztNothingBetween(wide.endContainer, wide.endOffset, whole.endContainer,
                              whole.endOffset))
            return wide;
        wide.selectNode(element);
    }
}

// The selected content in the inline elements that hold it, so that part of a
// bold word is still copied bold.
function ztCopiedContent(range) {
    let content = range.cloneContents();
    const common = range.commonAncestorContainer;
    let holder = common.nodeType === Node.ELEMENT_NODE ? common : common.parentNode;
    while (holder && ztInlineElements.has(holder.localName)) {
        const copy = holder.cloneNode(false);
        copy.appendChild(content);
        const fragment = document.createDocumentFragment();
        fragment.appendChild(copy);
        content = fragment;
        holder = holder.parentNode;
    }
    return content;
}

function ztCopy(args) {
    const range = ztSelectionRange();
    if (!range || range.collapsed)
        return {ok: false};
    const text = window.getSelection().toString().replace(/\u00a0/g, ' ');
    const wide = ztWidened(range);
    const html = ztWriter({givenGenerators: args.givenGenerators}).nodes(ztCopiedContent(wide));
    return {ok: true, html, text, wide};
}

function ztRemove(range) {
    range.deleteContents();
    range.collapse(true);
    ztSelect(range);
}

const ztCommands = {
    selectAll() {
        if (!document.body)
            return {ok: false};
        const range = document.createRange();
        range.selectNodeContents(document.body);
        ztSelect(range);
        return {ok: true};
    },
    // A caret copies nothing and still succeeds.
    copy(args) {
        const range = ztSelectionRange();
        if (!range || range.collapsed)
            return {ok: true, empty: true};
        const copied = ztCopy(args);
        return {ok: copied.ok, html: copied.html, text: copied.text};
    },
    cut(args) {
        const copied = ztCopy(args);
        if (copied.ok)
            ztRemove(copied.wide);
        return {ok: copied.ok, html: copied.html, text: copied.text};
    },
    remove() {
        const range = ztSelectionRange();
        if (!range || range.collapsed)
            return {ok: false};
        ztRemove(ztWidened(range));
        return {ok: true};
    },
    // The fragment is parsed in a template, where nothing in it runs and table
    // parts stay as they are, and lands in place of the selection with the caret
    // behind it.
    paste(args) {
        if (!document.body)
            return {ok: false};
        let range = ztSelectionRange();
        if (!range) {
            range = document.createRange();
            range.setStart(document.body, 0);
        }
        const holder = document.createElement('template');
        holder.innerHTML = args.html;
        const fragment = document.importNode(holder.content, true);
        const last = fragment.lastChild;
        range.deleteContents();
        range.insertNode(fragment);
        if (last) {
            range.setStartAfter(last);
            range.collapse(true);
        }
        ztSelect(range);
        return {ok: true};
    },
    // The first occurrence of the text in the body's text, within one text node.
    selectText(args) {
        if (!document.body || !args.text)
            return {ok: false};
        const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
        for (let node = walker.nextNode(); node; node = walker.nextNode()) {
            const at = node.data.indexOf(args.text);
            if (at >= 0) {
                const range = document.createRange();
                range.setStart(node, at);
                range.setEnd(node, at + args.text.length);
                ztSelect(range);
                return {ok: true};
            }
        }
        return {ok: false};
    },
};

// The commands that only read the page or move the selection. Every other command
// is an edit, recorded in the page's history so that Undo takes it back.
const ztReadingCommands = new Set(['selectAll', 'copy', 'selectText', 'undo', 'redo']);

// args: command, the name of one of ztCommands, and what it needs.
function ztEdit(args) {
    const command = ztCommands[args.command];
    if (!command)
        return {ok: false};
    return ztReadingCommands.has(args.command) ? command(args) : ztRecorded(() => command(args));
}
