#include "taglist.h"

#include <array>

namespace zt::taglist {

namespace {

struct Group {
    const char* heading;
    const char* tags;
};

// The groups in list order, their tags in list order.
constexpr std::array kGroups{
    Group{"Basic Tags", "<!DOCTYPE> <html> <body> <h1> <h2> <h3> <h4> <h5> <h6> <p> <br> <hr> "
                        "<!--...-->"},
    Group{"Char Format", "<b> <font> <i> <em> <big> <strong> <small> <sup> <sub> <bdo> <u>"},
    Group{"Output", "<pre> <code> <tt> <kbd> <var> <dfn> <samp> <xmp>"},
    Group{"Blocks", "<acronym> <abbr> <address> <blockquote> <center> <q> <cite> <ins> <del> "
                    "<s> <strike>"},
    Group{"Links", "<a> <link>"},
    Group{"Frames", "<frame> <frameset> <noframes> <iframe>"},
    Group{"Input", "<form> <input> <textarea> <button> <select> <optgroup> <option> <label> "
                   "<fieldset> <legend> <isindex>"},
    Group{"Lists", "<ul> <ol> <li> <dir> <dl> <dt> <dd> <menu>"},
    Group{"Images", "<img> <map> <area>"},
    Group{"Tables", "<table> <caption> <th> <tr> <td> <thead> <tbody> <tfoot> <col> <colgroup>"},
    Group{"Styles", "<style> <div> <span>"},
    Group{"Meta Info", "<head> <title> <meta> <base> <basefont>"},
    Group{"Programming", "<script> <noscript> <applet> <object> <param>"},
};

// Tags that take no closing tag.
constexpr std::array kStandAlone{"<!DOCTYPE>", "<br>",   "<hr>",  "<link>",
                                 "<input>",    "<area>", "<meta>"};

} // namespace

QStringList designLines() {
    QStringList lines;
    for (const Group& group : kGroups) {
        if (!lines.isEmpty())
            lines << QString() << QString();
        lines << QString::fromLatin1(group.heading) << QString();
        lines << QString::fromLatin1(group.tags).split(QLatin1Char(' '));
    }
    return lines;
}

int findLine(const QStringList& lines, const QString& text) {
    if (text == kSearchPrompt)
        return -1;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines[i].toLower().contains(text.toLower()))
            return i;
    }
    return -1;
}

bool isTag(const QString& line) {
    return line.startsWith(QLatin1Char('<'));
}

QString closingTag(const QString& tag) {
    for (const char* alone : kStandAlone) {
        if (tag == QLatin1String(alone))
            return {};
    }
    QString closing = tag;
    if (!closing.isEmpty())
        closing[0] = QLatin1Char('/');
    return QLatin1Char('<') + closing;
}

bool isReferenceLine(const QString& line) {
    if (line.isEmpty())
        return false;
    const QChar c = line.front();
    return c != c.toUpper() || c == QLatin1Char(':');
}

} // namespace zt::taglist
