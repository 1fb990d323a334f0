#include "textfiles.h"

#include "runtimefailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringDecoder>
#include <QStringEncoder>

namespace zt::textfiles {

namespace {

const QByteArray kWindows1252 = QByteArrayLiteral("windows-1252");
const QByteArray kUtf8Mark = QByteArrayLiteral("\xEF\xBB\xBF");
const QByteArray kUtf16LEMark = QByteArrayLiteral("\xFF\xFE");
const QByteArray kUtf16BEMark = QByteArrayLiteral("\xFE\xFF");

// Windows-1252 differs from Latin-1 only in 0x80 to 0x9F. The five bytes it leaves
// unassigned stand for the control characters of the same number, as browsers
// read them, so that they too come back as they were.
constexpr char16_t kHigh1252[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The names browsers read as Windows-1252, Latin-1 and ASCII among them.
const QList<QByteArray> kWindows1252Labels = {
    "ansi_x3.4-1968", "ascii",           "cp1252",     "cp819",     "csisolatin1",
    "ibm819",         "iso-8859-1",      "iso-ir-100", "iso8859-1", "iso88591",
    "iso_8859-1",     "iso_8859-1:1987", "l1",         "latin1",    "us-ascii",
    "windows-1252",   "x-cp1252"};

RuntimeFailure accessError() {
    return {75, QStringLiteral("Path/File access error")};
}

RuntimeFailure badFileName() {
    return {RuntimeFailure::BadFileNameOrNumber, QStringLiteral("Bad file name or number")};
}

QHash<QString, Encoding>& remembered() {
    static QHash<QString, Encoding> encodings;
    return encodings;
}

QString key(const QString& path) {
    return QFileInfo(path).absoluteFilePath();
}

QString decode1252(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (const char c : bytes) {
        const auto b = uchar(c);
        *out++ = QChar(b >= 0x80 && b < 0xA0 ? kHigh1252[b - 0x80] : char16_t(b));
    }
    return text;
}

int byte1252(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (int i = 0; i < 32; ++i) {
        if (kHigh1252[i] == c)
            return 0x80 + i;
    }
    return -1;
}

// Walks text by code point; fits(point, out) appends the point's bytes and says
// whether the code page holds it. What it cannot hold becomes &#n;.
template <class Fits> QByteArray encodeWithReferences(const QString& text, Fits fits) {
    QByteArray out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        qsizetype units = 1;
        char32_t point = text.at(i).unicode();
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() &&
            text.at(i + 1).isLowSurrogate()) {
            point = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            units = 2;
        }
        if (!fits(QStringView(text).mid(i, units), out))
            out += "&#" + QByteArray::number(uint(point)) + ';';
        i += units - 1;
    }
    return out;
}

QByteArray encode1252(const QString& text) {
    return encodeWithReferences(text, [](QStringView point, QByteArray& out) {
        const int b = point.size() == 1 ? byte1252(point.at(0).unicode()) : -1;
        if (b >= 0)
            out += char(b);
        return b >= 0;
    });
}

// A charset a page declares, through ICU. Used only where its decoding was seen
// to give the same bytes back.
QByteArray encodeDeclared(const QString& text, const QByteArray& charset) {
    QStringEncoder whole(charset.constData());
    const QByteArray bytes = whole.encode(text);
    if (!whole.hasError() && QString(QStringDecoder(charset.constData()).decode(bytes)) == text)
        return bytes;
    QStringEncoder one(charset.constData(), QStringConverter::Flag::Stateless);
    QStringDecoder back(charset.constData(), QStringConverter::Flag::Stateless);
    return encodeWithReferences(text, [&](QStringView point, QByteArray& out) {
        one.resetState();
        back.resetState();
        const QByteArray b = one.encode(point);
        if (one.hasError() || QString(back.decode(b)) != point)
            return false;
        out += b;
        return true;
    });
}

bool isUtf8(QByteArrayView bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return !decoder.hasError() && text.toUtf8() == bytes;
}

// The charset of the first <meta> that names one, lower case; empty for none.
QByteArray declaredCharset(const QByteArray& bytes) {
    static const QRegularExpression meta(
        QStringLiteral(R"(<meta\b[^>]*?charset\s*=\s*["']?\s*([a-z0-9_.:+-]+))"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = meta.match(QString::fromLatin1(bytes.left(65536)));
    return match.hasMatch() ? match.captured(1).toLower().toLatin1() : QByteArray();
}

bool roundTrips(const QByteArray& bytes, const QByteArray& charset) {
    QStringDecoder decoder(charset.constData());
    if (!decoder.isValid())
        return false;
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return false;
    QStringEncoder encoder(charset.constData());
    const QByteArray back = encoder.encode(text);
    return !encoder.hasError() && back == bytes;
}

} // namespace

Encoding detect(const QByteArray& bytes) {
    if (bytes.startsWith(kUtf16LEMark))
        return {"UTF-16LE", true};
    if (bytes.startsWith(kUtf16BEMark))
        return {"UTF-16BE", true};
    const bool mark = bytes.startsWith(kUtf8Mark);
    if (isUtf8(QByteArrayView(bytes).sliced(mark ? 3 : 0)))
        return {"UTF-8", mark};
    // A declared UTF is not what the bytes are (they are not valid UTF-8 and have no
    // mark), and a Latin-1 page is read as the superset browsers read it as.
    const QByteArray declared = declaredCharset(bytes);
    if (!declared.isEmpty() && !declared.startsWith("utf") && !declared.startsWith("ucs") &&
        !kWindows1252Labels.contains(declared) && roundTrips(bytes, declared))
        return {declared, false};
    return {kWindows1252, false};
}

QString decode(const QByteArray& bytes, const Encoding& encoding) {
    const auto body = [&](const QByteArray& mark) {
        return encoding.byteOrderMark && bytes.startsWith(mark)
                   ? QByteArrayView(bytes).sliced(mark.size())
                   : QByteArrayView(bytes);
    };
    if (encoding.isUtf8())
        return QString::fromUtf8(body(kUtf8Mark));
    if (encoding.charset == "UTF-16LE")
        return QStringDecoder(QStringConverter::Utf16LE).decode(body(kUtf16LEMark));
    if (encoding.charset == "UTF-16BE")
        return QStringDecoder(QStringConverter::Utf16BE).decode(body(kUtf16BEMark));
    if (encoding.charset == kWindows1252)
        return decode1252(bytes);
    return QStringDecoder(encoding.charset.constData()).decode(bytes);
}

QByteArray encode(const QString& text, const Encoding& encoding) {
    if (encoding.isUtf8())
        return (encoding.byteOrderMark ? kUtf8Mark : QByteArray()) + text.toUtf8();
    if (encoding.charset == "UTF-16LE")
        return kUtf16LEMark + QByteArray(QStringEncoder(QStringConverter::Utf16LE).encode(text));
    if (encoding.charset == "UTF-16BE")
        return kUtf16BEMark + QByteArray(QStringEncoder(QStringConverter::Utf16BE).encode(text));
    if (encoding.charset == kWindows1252 || !QStringEncoder(encoding.charset.constData()).isValid())
        return encode1252(text);
    return encodeDeclared(text, encoding.charset);
}

TextFile read(const QString& path) {
    if (path.isEmpty())
        throw badFileName();
    const QFileInfo info(path);
    if (!info.exists())
        throw RuntimeFailure::fileNotFound();
    // Only plain files: a folder, a device or a pipe is no document, and reading
    // one could wait forever or never end.
    if (!info.isFile())
        throw accessError();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw accessError();
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw accessError();
    const Encoding encoding = detect(bytes);
    remembered().insert(key(path), encoding);
    return {decode(bytes, encoding), encoding};
}

QString readAll(const QString& path) {
    return read(path).text;
}

Encoding encodingOf(const QString& path) {
    return remembered().value(key(path));
}

QStringList readLines(const QString& path) {
    const QString text = readAll(path);
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n'))
            continue;
        lines << text.mid(start, i - start);
        if (c == QLatin1Char('\r') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines << text.mid(start);
    return lines;
}

void write(const QString& path, const QString& text, const Encoding& encoding) {
    if (path.isEmpty())
        throw badFileName();
    const QFileInfo info(path);
    if (!info.absoluteDir().exists())
        throw RuntimeFailure::pathNotFound();
    if (info.isDir())
        throw accessError();
    const QByteArray bytes = encode(text, encoding);
    if (info.exists() && !info.isFile()) {
        // A device takes the text in place; there is no file to keep whole.
        QFile device(path);
        if (!device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
            device.write(bytes) != bytes.size())
            throw accessError();
    } else {
        // The text goes to a new file that takes the old one's place only once all
        // of it is written: a full disk leaves the old file as it was. Unbuffered,
        // since a buffered file reports a write the disk cut short as complete.
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            throw accessError();
        if (file.write(bytes) != bytes.size()) {
            file.cancelWriting();
            file.commit();
            throw accessError();
        }
        if (!file.commit())
            throw accessError();
    }
    remembered().insert(key(path), encoding);
}

void write(const QString& path, const QString& text) {
    write(path, text, encodingOf(path));
}

bool looksBinary(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(65536);
    if (start.startsWith(kUtf16LEMark) || start.startsWith(kUtf16BEMark))
        return false;
    return start.contains('\0');
}

} // namespace zt::textfiles
