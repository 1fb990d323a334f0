#include "richtext.h"

#include "runtimefailure.h"
#include "textfiles.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <QStringEncoder>

namespace zt::richtext {

namespace {

const QByteArray kHeader = QByteArrayLiteral(
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033{\\fonttbl{\\f0\\fnil\\fcharset0 "
    "Courier New;}}\r\n\\viewkind4\\uc1\\pard\\f0\\fs20 ");

QByteArray hexEscape(uchar byte) {
    return QByteArrayLiteral("\\'") + QByteArray::number(byte, 16).rightJustified(2, '0');
}

// The words and symbols that stand for a character of their own.
QString characterOf(const QByteArray& word) {
    static const struct {
        const char* word;
        char16_t character;
    } words[] = {{"tab", u'\t'},           {"emdash", u'\u2014'},    {"endash", u'\u2013'},
                 {"bullet", u'\u2022'},    {"lquote", u'\u2018'},    {"rquote", u'\u2019'},
                 {"ldblquote", u'\u201C'}, {"rdblquote", u'\u201D'}, {"~", u'\u00A0'},
                 {"_", u'\u2011'}};
    for (const auto& w : words)
        if (word == w.word)
            return QString(QChar(w.character));
    if (word == "par" || word == "line")
        return QStringLiteral("\r\n");
    return {};
}

// Groups whose text is not the document's.
bool skipsGroup(const QByteArray& word) {
    static const char* const words[] = {"fonttbl", "colortbl", "stylesheet", "info",
                                        "pict",    "header",   "footer",     "listtable"};
    for (const char* w : words)
        if (word == w)
            return true;
    return false;
}

// Reads one document, byte by byte: raw bytes and \'hh escapes gather until
// something else comes, and are then decoded together in the file's code page, so a
// character of two bytes survives.
class Reader {
public:
    explicit Reader(const QByteArray& rtf) : in(rtf) {}

    QString text() {
        int depth = 0, skipFrom = -1;
        while (at < in.size()) {
            const char c = in[at++];
            if (c == '{') {
                ++depth;
            } else if (c == '}') {
                if (depth-- == skipFrom)
                    skipFrom = -1;
            } else if (c == '\r' || c == '\n' || c == '\0') {
            } else if (c != '\\') {
                if (skipFrom < 0 && skipping == 0)
                    bytes += c;
                else if (skipping > 0)
                    --skipping;
            } else if (const auto word = controlWord(); skipFrom < 0) {
                if (word == "*" || skipsGroup(word.name))
                    skipFrom = depth;
                else
                    apply(word);
            }
        }
        flush();
        if (out.endsWith(QStringLiteral("\r\n")))
            out.chop(2);
        return out;
    }

private:
    struct Word {
        QByteArray name;
        int parameter = 0;
        bool hasParameter = false;
        bool operator==(const char* other) const { return name == other; }
    };

    Word controlWord() {
        Word w;
        if (at >= in.size())
            return w;
        const char first = in[at];
        if (!std::isalpha(uchar(first))) {
            ++at;
            w.name = QByteArray(1, first);
            if (first == '\'') {
                w.parameter = in.mid(at, 2).toInt(nullptr, 16);
                w.hasParameter = true;
                at += 2;
            }
            return w;
        }
        while (at < in.size() && std::isalpha(uchar(in[at])))
            w.name += in[at++];
        const qsizetype start = at;
        if (at < in.size() && (in[at] == '-' || std::isdigit(uchar(in[at]))))
            ++at;
        while (at < in.size() && std::isdigit(uchar(in[at])))
            ++at;
        if (at > start) {
            w.parameter = in.mid(start, at - start).toInt();
            w.hasParameter = true;
        }
        if (at < in.size() && in[at] == ' ')
            ++at;
        return w;
    }

    void apply(const Word& w) {
        if (skipping > 0) {
            // The stand-in of a \u character: one escaped or plain byte each.
            if (w == "'")
                --skipping;
            if (w == "'" || w.name.size() != 1)
                return;
        }
        if (w == "'") {
            bytes += char(w.parameter);
        } else if (w == "\\" || w == "{" || w == "}") {
            bytes += w.name;
        } else if (w == "u" && w.hasParameter) {
            put(QString(QChar(char16_t(w.parameter < 0 ? w.parameter + 65536 : w.parameter))));
            skipping = fallback;
        } else if (w == "uc" && w.hasParameter) {
            fallback = w.parameter;
        } else if (w == "ansicpg" && w.hasParameter) {
            codePage = "windows-" + QByteArray::number(w.parameter);
        } else if (const QString c = characterOf(w.name); !c.isEmpty()) {
            put(c);
        }
    }

    void put(const QString& s) {
        flush();
        out += s;
    }

    void flush() {
        if (bytes.isEmpty())
            return;
        QStringDecoder decoder(codePage.constData());
        if (!decoder.isValid())
            decoder = QStringDecoder("windows-1252");
        out += decoder.decode(bytes);
        bytes.clear();
    }

    const QByteArray& in;
    qsizetype at = 0;
    QByteArray bytes, codePage = "windows-1252";
    QString out;
    int fallback = 1, skipping = 0;
};

} // namespace

QByteArray write(const QString& text) {
    QByteArray out = kHeader;
    QStringEncoder cp1252("windows-1252");
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const char16_t u = c.unicode();
        if (u == u'\r' && text.mid(i, 2) == QStringLiteral("\r\n")) {
            out += "\\par\r\n";
            ++i;
        } else if (u == u'\t') {
            out += "\\tab ";
        } else if (u == u'\\' || u == u'{' || u == u'}') {
            out += '\\';
            out += char(u);
        } else if (u >= 0x20 && u < 0x80) {
            out += char(u);
        } else if (u < 0x20) {
            out += hexEscape(uchar(u));
        } else if (const QByteArray b = cp1252.encode(QString(c));
                   cp1252.hasError() || b.size() != 1 || b == "?") {
            cp1252.resetState();
            // Signed, as the format has it; the ? is the stand-in an older reader shows.
            out += "\\u" + QByteArray::number(qint16(u)) + '?';
        } else {
            out += hexEscape(uchar(b[0]));
        }
    }
    return out + "\\par\r\n}\r\n";
}

QString read(const QByteArray& rtf) {
    return Reader(rtf).text();
}

void saveFile(const QString& path, const QString& text) {
    if (!QFileInfo(QFileInfo(path).absolutePath()).isDir())
        throw RuntimeFailure::pathNotFound();
    QFile file(path);
    const QByteArray bytes = write(text);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw RuntimeFailure(75, QStringLiteral("Path/File access error"));
}

QString loadFile(const QString& path) {
    QFile file(path);
    if (!file.exists())
        throw RuntimeFailure::fileNotFound();
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        throw RuntimeFailure(75, QStringLiteral("Path/File access error"));
    return read(file.readAll());
}

} // namespace zt::richtext
