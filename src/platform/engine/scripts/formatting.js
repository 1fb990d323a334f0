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

for (const name of ['bold', 'italic', 'underline', 'removeFormat', 'insertOrderedList',
                    'insertUnorderedList', 'indent', 'outdent', 'justifyLeft', 'justifyCenter',
                    'justifyRight'])
    ztCommands[name] = () => ztNative(name);

// The link around a caret goes as a whole; a selection loses the links it touches.
// Where there is no link, there is nothing to remove.
ztCommands.unlink = () => {
    const range = ztSelectionRange();
    if (!range)
        return {ok: false};
    const start = range.startContainer;
    const holder = (start.nodeType === Node.ELEMENT_NODE ? start : start.parentNode).closest('a[href]');
    if (range.collapsed) {
        if (!holder)
            return {ok: false};
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
