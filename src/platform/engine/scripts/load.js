// Puts a page into the editing surface without navigating: the text is parsed on
// its own and its nodes replace those of the shell page that the surface shows.
// A parse of this kind never runs the page's scripts, costs a fraction of a
// navigation on large pages, and keeps the shell's address, against which the
// page's relative links and images resolve.
//
// The shell decides whether the page is laid out in quirks or standards mode. When
// the page needs the other mode, nothing is replaced and the answer names the
// doctype a shell must have for it.

function ztDoctypeText(doctype) {
    if (!doctype)
        return '';
    return ztWriter({}).nodes(doctype);
}

// args: none; for a page that came by navigation.
function ztTrimBodyEndOfPage() {
    ztTrimBodyEnd();
    ztHistoryReset();
    return {ok: true};
}

// A parser puts the line breaks after </BODY> and </HTML> into the body, and the
// page's text never meant them to be there: the body ends where its content ends,
// as its serialisation says, and a select-all takes no white space along.
function ztTrimBodyEnd() {
    const body = document.body;
    while (body && body.lastChild && body.lastChild.nodeType === Node.TEXT_NODE) {
        const text = body.lastChild.data.replace(/[ \t\n\r\f]+$/, '');
        if (text !== '') {
            body.lastChild.data = text;
            return;
        }
        body.removeChild(body.lastChild);
    }
}

// args: html, the page's text; editable, whether the surface is in design mode.
function ztLoadPage(args) {
    const parsed = new DOMParser().parseFromString(args.html, 'text/html');
    if (parsed.compatMode !== document.compatMode)
        return {loaded: false, doctype: ztDoctypeText(parsed.doctype)};
    while (document.firstChild)
        document.removeChild(document.firstChild);
    for (const node of Array.from(parsed.childNodes))
        document.appendChild(document.adoptNode(node));
    ztTrimBodyEnd();
    document.designMode = args.editable ? 'on' : 'off';
    // No selection is the caret at the start of the page. Placing a real one would
    // lay the page out inside this call, seconds for a large page.
    window.getSelection().removeAllRanges();
    ztHistoryReset();
    return {loaded: true};
}

// Design mode for a page that came by navigation.
function ztSetEditable(args) {
    document.designMode = args.editable ? 'on' : 'off';
    ztHistory();
    return {ok: true};
}

// Marks the document the surface shows before it goes to another, so that the
// engine can tell the next one from it: each document has a world of its own.
function ztMarkDocument() {
    window.ztLeft = true;
    return {ok: true};
}

// Whether the surface shows a new document yet, where from, and whether it is
// parsed; its images and other parts may still be on their way.
function ztProbeDocument() {
    return {
        fresh: window.ztLeft !== true && location.href !== 'about:blank',
        parsed: document.readyState !== 'loading',
        href: location.href,
    };
}
