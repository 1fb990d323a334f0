#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// Facts about a page's text that both page engines need before or after the page
// itself is parsed.
namespace zt {
class Clipboard;
}

namespace zt::pagetext {

// The meta tags that name a generator (name="generator" in any case, quoted or
// not), exactly as the text spells them, in order.
QStringList generatorMetaTags(QStringView html);

// The text with every line break (CR LF, a lone CR, a lone LF) as CR LF.
QString withCrLf(QStringView text);

// Text turned into HTML that shows it: & < > escaped, line breaks as <br>.
QString htmlOfPlainText(QStringView text);

// What a paste puts into a page: the clipboard's HTML, or else its text as HTML.
// An empty clipboard has nothing to paste, and the paste fails with 5.
QString htmlToPaste(const Clipboard& clipboard);

} // namespace zt::pagetext
