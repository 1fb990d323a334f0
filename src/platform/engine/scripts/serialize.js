// The page as the engine writes it. Every read of the document goes through here,
// so the program's text searches always meet one format:
//
// - The doctype, when the page has one, as <!DOCTYPE name PUBLIC "id" "system">
//   with the parts it has, on a line of its own; so are comments outside <HTML>.
// - <HTML>, <HEAD> and <BODY> in upper case, with their attributes. <HTML> and
//   <HEAD> end their line, each child of the head stands on a line of its own and
//   </HEAD>, </BODY> and </HTML> each end a line. White space between these parts
//   of the frame is not the page's: a parser drops or moves it, so it is written
//   the same way on every read.
// - The generator marker, first in the head, when no meta named "generator" (in
//   any case) stands anywhere in the page. A generator line that the page was
//   given is written back exactly as it was given, so the program's rules find it.
// - Inside the body, the page's own text and white space as they stand. White space
//   at the very end of the body is dropped, since a parser puts the line breaks
//   after </BODY> and </HTML> into the body and a page would grow by a line on each
//   trip through the engine; a body with content closes on a line of its own, an
//   empty one is <BODY></BODY>.
// - Every other element in lower case. Attributes in the page's order, names as
//   the parser keeps them, values in double quotes with & as &amp; and " as &quot;.
// - An inline style as the engine reads it: `name: value;` declarations joined by
//   one blank, rgb() colours as #rrggbb. A style the engine cannot read at all is
//   written as it was given.
// - Void elements (br, hr, img, input, meta, link...) with no end tag and no slash.
// - Text with & < > as &amp; &lt; &gt;; the content of script, style and the other
//   raw text elements as it is; a non-breaking space as &nbsp; in text and values.
// - Comments as <!--text-->.
// - Every line break, also inside text and values, as CR LF. The script answers
//   with the parser's LF breaks; the engine turns them into CR LF as the text
//   leaves the page, which costs far less there.

const ztVoidElements = new Set([
    'area', 'base', 'basefont', 'bgsound', 'br', 'col', 'embed', 'frame', 'hr', 'img',
    'input', 'keygen', 'link', 'meta', 'param', 'source', 'track', 'wbr',
]);
const ztRawTextElements =
    new Set(['script', 'style', 'xmp', 'iframe', 'noembed', 'noframes', 'plaintext']);
// A parser drops a line break right after these start tags, so one that belongs to
// the content needs another in front of it.
const ztLeadingBreakElements = new Set(['pre', 'textarea', 'listing']);

const ztTextEscapes = {'&': '&amp;', '<': '&lt;', '>': '&gt;', '\u00a0': '&nbsp;'};
const ztValueEscapes = {'&': '&amp;', '"': '&quot;', '\u00a0': '&nbsp;'};
const ztTextSpecial = /[&<>\u00a0]/;
const ztTextSpecials = /[&<>\u00a0]/g;
const ztValueSpecial = /[&"\u00a0]/;
const ztValueSpecials = /[&"\u00a0]/g;

function ztIsBlank(text) {
    return /^[ \t\n\r\f]*$/.test(text);
}

function ztEscapedText(text) {
    return ztTextSpecial.test(text) ? text.replace(ztTextSpecials, c => ztTextEscapes[c]) : text;
}

function ztEscapedValue(value) {
    return ztValueSpecial.test(value) ? value.replace(ztValueSpecials, c => ztValueEscapes[c])
                                      : value;
}

function ztHexColours(css) {
    return css.replace(/rgb\(\s*(\d+)\s*,\s*(\d+)\s*,\s*(\d+)\s*\)/g, (all, r, g, b) =>
        '#' + [r, g, b].map(part => Number(part).toString(16).padStart(2, '0')).join(''));
}

function ztIsGeneratorMeta(node) {
    return node.nodeType === Node.ELEMENT_NODE && node.localName === 'meta' &&
        (node.getAttribute('name') || '').trim().toLowerCase() === 'generator';
}

// What the engine itself shows in the page (outlines, markers, handles) is an
// element named zt-something: never part of the document, never written, never
// recorded in its history.
function ztIsOwn(node) {
    return node.nodeType === Node.ELEMENT_NODE && node.localName.startsWith('zt-');
}

function ztSameAttributes(a, b) {
    if (a.attributes.length !== b.attributes.length)
        return false;
    for (const attribute of a.attributes) {
        if (b.getAttribute(attribute.name) !== attribute.value)
            return false;
    }
    return true;
}

// options: givenGenerators, the generator tags as the page's text spelled them;
// scripting, true when the page was parsed with scripts on (then <noscript> holds
// raw text).
function ztWriter(options) {
    const out = [];
    const given = (options.givenGenerators || []).map(text => {
        const holder = document.createElement('template');
        holder.innerHTML = text;
        return {text, meta: holder.content.querySelector('meta')};
    });

    function takeGiven(meta) {
        const index = given.findIndex(entry => entry.meta && ztSameAttributes(entry.meta, meta));
        return index < 0 ? null : given.splice(index, 1)[0].text;
    }

    function startTag(element, name) {
        if (!element.hasAttributes())
            return '<' + name + '>';
        let tag = '<' + name;
        const attributes = element.attributes;
        for (let i = 0; i < attributes.length; ++i) {
            const attribute = attributes[i];
            let value = attribute.value;
            if (attribute.name === 'style' && element.style && element.style.cssText)
                value = ztHexColours(element.style.cssText);
            tag += ' ' + attribute.name + '="' + ztEscapedValue(value) + '"';
        }
        return tag + '>';
    }

    function element(node) {
        const name = node.localName.toLowerCase();
        if (name === 'meta' && ztIsGeneratorMeta(node)) {
            const text = takeGiven(node);
            if (text !== null) {
                out.push(text);
                return;
            }
        }
        out.push(startTag(node, name));
        if (ztVoidElements.has(name))
            return;
        const first = node.firstChild;
        if (first && ztLeadingBreakElements.has(name) && first.nodeType === Node.TEXT_NODE &&
            first.data.startsWith('\n'))
            out.push('\n');
        const raw = ztRawTextElements.has(name) || (options.scripting && name === 'noscript');
        children(name === 'template' ? node.content : node, raw);
        out.push('</' + name + '>');
    }

    // raw: the parent holds raw text, written as it is.
    function children(parent, raw) {
        for (let child = parent.firstChild; child; child = child.nextSibling) {
            if (child.nodeType === Node.TEXT_NODE)
                out.push(raw ? child.data : ztEscapedText(child.data));
            else
                write(child);
        }
    }

    function doctype(node) {
        let text = '<!DOCTYPE ' + node.name;
        if (node.publicId)
            text += ' PUBLIC "' + node.publicId + '"';
        if (node.systemId)
            text += (node.publicId ? ' "' : ' SYSTEM "') + node.systemId + '"';
        out.push(text + '>');
    }

    function write(node) {
        if (ztIsOwn(node))
            return;
        switch (node.nodeType) {
        case Node.ELEMENT_NODE:
            element(node);
            break;
        case Node.TEXT_NODE:
            out.push(ztEscapedText(node.data));
            break;
        case Node.COMMENT_NODE:
            out.push('<!--' + node.data + '-->');
            break;
        case Node.DOCUMENT_TYPE_NODE:
            doctype(node);
            break;
        case Node.DOCUMENT_FRAGMENT_NODE:
            children(node);
            break;
        }
    }

    function line(node) {
        write(node);
        out.push('\n');
    }

    function head(node, marker) {
        out.push(startTag(node, 'HEAD'), '\n');
        if (marker)
            out.push(marker, '\n');
        for (let child = node.firstChild; child; child = child.nextSibling) {
            if (child.nodeType !== Node.TEXT_NODE || !ztIsBlank(child.data))
                line(child);
        }
        out.push('</HEAD>\n');
    }

    function body(node) {
        out.push(startTag(node, 'BODY'));
        const start = out.length;
        children(node);
        while (out.length > start) {
            const last = out[out.length - 1].replace(/[ \t\n\r\f]+$/, '');
            if (last !== '') {
                out[out.length - 1] = last;
                out.push('\n');
                break;
            }
            out.pop();
        }
        out.push('</BODY>\n');
    }

    function root(node, marker) {
        out.push(startTag(node, 'HTML'), '\n');
        let headWritten = false;
        for (let child = node.firstChild; child; child = child.nextSibling) {
            if (child.localName === 'head' && !headWritten) {
                head(child, marker);
                headWritten = true;
            } else if (child.localName === 'body') {
                body(child);
            } else if (!ztIsOwn(child) &&
                       (child.nodeType !== Node.TEXT_NODE || !ztIsBlank(child.data))) {
                line(child);
            }
        }
        out.push('</HTML>\n');
    }

    function finish() {
        return out.join('');
    }

    return {
        page(marker) {
            const hasGenerator =
                Array.prototype.some.call(document.getElementsByTagName('meta'), ztIsGeneratorMeta);
            for (let node = document.firstChild; node; node = node.nextSibling) {
                if (node === document.documentElement && node.localName === 'html')
                    root(node, hasGenerator ? null : marker);
                else
                    line(node);
            }
            return finish();
        },
        nodes(parent) {
            write(parent);
            return finish();
        },
    };
}

// args: marker (the generator line to add, or null), givenGenerators, scripting.
function ztSerializePage(args) {
    return ztWriter(args).page(args.marker);
}
