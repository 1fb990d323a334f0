// Character and block formatting, by the browser's own editing commands: they
// know how to split and join the page's elements around a selection. With CSS
// styling off they write the plain elements a page author would (<b>, <i>, <u>,
// <font>, <ul>), not style attributes.

function ztNative(name, value) {
    if (!document.body || !ztSelectionRange())
        return {ok: false};
    document.execCommand('styleWithCSS', false, false);
    return {ok: document.execCommand(name, false, value)};
}

for (const name of ['bold', 'italic', 'underline', 'removeFormat', 'indent', 'outdent',
                    'justifyLeft', 'justifyCenter', 'justifyRight'])
    ztCommands[name] = () => ztNative(name);

// The browser makes a list inside the paragraph it came from, which no parser
// would keep: the page would grow an empty paragraph on its next trip through the
// source view. The list takes the paragraph's place instead.
function ztList(name) {
    const answer = ztNative(name);
    for (const list of Array.from(document.body.querySelectorAll('p > ol, p > ul'))) {
        const paragraph = list.parentNode;
        paragraph.parentNode.insertBefore(list, paragraph);
        if (!paragraph.firstChild)
            paragraph.remove();
    }
    return answer;
}
ztCommands.insertOrderedList = () => ztList('insertOrderedList');
ztCommands.insertUnorderedList = () => ztList('insertUnorderedList');

// The link around a caret or a selection goes as a whole; a selection across links
// loses the parts of them it touches. Where there is no link, there is nothing to
// remove.
ztCommands.unlink = () => {
    const range = ztSelectionRange();
    if (!range)
        return {ok: false};
    const start = range.startContainer;
    const holder = (start.nodeType === Node.ELEMENT_NODE ? start : start.parentNode).closest('a[href]');
    if (holder && holder.contains(range.endContainer)) {
        const whole = document.createRange();
        whole.selectNodeContents(holder);
        ztSelect(whole);
    } else if (!holder) {
        const inside = range.cloneContents().querySelector('a[href]');
        if (!inside)
            return {ok: false};
    }
    return ztNative('unlink');
};
