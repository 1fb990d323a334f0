#include "vbstrings.h"

#include "runtimefailure.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace zt::vb {

namespace {

Qt::CaseSensitivity sensitivity(Compare compare) {
    return compare == Compare::Text ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

void requireNonNegative(qint64 value) {
    if (value < 0)
        throw RuntimeFailure::invalidProcedureCall();
}

// The numeric literal forms the run time accepts: decimal with an optional
// exponent, and the &H / &O integer literals.
const QRegularExpression& decimalPattern() {
    static const QRegularExpression re(
        QStringLiteral(R"(^\s*[+-]?\s*(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?\s*$)"));
    return re;
}
const QRegularExpression& radixPattern() {
    static const QRegularExpression re(QStringLiteral(R"(^\s*&([hH][0-9a-fA-F]+|[oO][0-7]+)\s*$)"));
    return re;
}

double parseNumeric(const QString& s, bool* ok) {
    if (radixPattern().match(s).hasMatch()) {
        const QString t = s.trimmed();
        const int base = t.at(1).toLower() == QLatin1Char('h') ? 16 : 8;
        return double(t.mid(2).toLongLong(ok, base));
    }
    if (!decimalPattern().match(s).hasMatch()) {
        *ok = false;
        return 0;
    }
    QString t = s;
    t.remove(QRegularExpression(QStringLiteral(R"(\s)")));
    t.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    return t.toDouble(ok);
}

double roundHalfEven(double value) {
    return std::nearbyint(value);
}

} // namespace

int InStr(int start, const QString& s, const QString& find, Compare compare) {
    if (start < 1)
        throw RuntimeFailure::invalidProcedureCall();
    if (s.isEmpty() || start > s.size())
        return 0;
    if (find.isEmpty())
        return start;
    return int(s.indexOf(find, start - 1, sensitivity(compare))) + 1;
}

int InStr(const QString& s, const QString& find, Compare compare) {
    return InStr(1, s, find, compare);
}

int InStrRev(const QString& s, const QString& find, int start, Compare compare) {
    if (start == 0 || start < -1)
        throw RuntimeFailure::invalidProcedureCall();
    if (start == -1)
        start = int(s.size());
    if (start > s.size() || s.isEmpty())
        return 0;
    if (find.isEmpty())
        return start;
    const int from = start - int(find.size());
    if (from < 0)
        return 0;
    return int(s.lastIndexOf(find, from, sensitivity(compare))) + 1;
}

QString Mid(const QString& s, int start, int length) {
    if (start < 1)
        throw RuntimeFailure::invalidProcedureCall();
    if (length < -1)
        throw RuntimeFailure::invalidProcedureCall();
    if (start > s.size())
        return {};
    return length == -1 ? s.mid(start - 1) : s.mid(start - 1, length);
}

QString Left(const QString& s, int length) {
    requireNonNegative(length);
    return s.left(length);
}

QString Right(const QString& s, int length) {
    requireNonNegative(length);
    return s.right(length);
}

QString Replace(const QString& s, const QString& find, const QString& with, int start, int count,
                Compare compare) {
    if (start < 1 || count < -1)
        throw RuntimeFailure::invalidProcedureCall();
    if (start > s.size())
        return {};
    QString rest = s.mid(start - 1);
    if (find.isEmpty() || count == 0)
        return rest;
    QString out;
    out.reserve(rest.size());
    qsizetype pos = 0;
    int done = 0;
    const auto cs = sensitivity(compare);
    while (count == -1 || done < count) {
        const qsizetype hit = rest.indexOf(find, pos, cs);
        if (hit < 0)
            break;
        out += QStringView(rest).mid(pos, hit - pos);
        out += with;
        pos = hit + find.size();
        ++done;
    }
    out += QStringView(rest).mid(pos);
    return out;
}

// Letter by letter, as the run time converts: the text keeps its length, so a
// position found in a converted copy stands for the same place in the original
// (a whole-string conversion turns some letters into two, such as a capital I with
// a dot above).
QString LCase(const QString& s) {
    QString out = s;
    for (QChar& c : out)
        c = c.toLower();
    return out;
}

QString UCase(const QString& s) {
    QString out = s;
    for (QChar& c : out)
        c = c.toUpper();
    return out;
}

QString LTrim(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && s.at(i) == QLatin1Char(' '))
        ++i;
    return s.mid(i);
}

QString RTrim(const QString& s) {
    qsizetype i = s.size();
    while (i > 0 && s.at(i - 1) == QLatin1Char(' '))
        --i;
    return s.left(i);
}

QString Trim(const QString& s) {
    return LTrim(RTrim(s));
}

int Len(const QString& s) {
    return int(s.size());
}

QString Chr(int code) {
    if (code < 0 || code > 255)
        throw RuntimeFailure::invalidProcedureCall();
    return QString(QChar(code));
}

int Asc(const QString& s) {
    if (s.isEmpty())
        throw RuntimeFailure::invalidProcedureCall();
    return s.at(0).unicode();
}

QString Space(int count) {
    requireNonNegative(count);
    return QString(count, QLatin1Char(' '));
}

QString Hex(qint64 value) {
    // Negative values show as the two's complement of their width, as the run time does.
    if (value < 0 && value >= std::numeric_limits<qint32>::min())
        return QString::number(quint32(qint32(value)), 16).toUpper();
    return QString::number(quint64(value), 16).toUpper();
}

bool IsNumeric(const QString& s) {
    bool ok = false;
    parseNumeric(s, &ok);
    return ok;
}

double Val(const QString& s) {
    QString digits;
    for (const QChar c : s) {
        if (c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') ||
            c == QLatin1Char('\r'))
            continue;
        digits += c;
    }
    static const QRegularExpression lead(
        QStringLiteral(R"(^[+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?)"));
    const auto m = lead.match(digits);
    if (!m.hasMatch())
        return 0;
    QString t = m.captured(0);
    t.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    return t.toDouble();
}

qint16 CInt(double value) {
    const double r = roundHalfEven(value);
    if (!(r >= -32768.0 && r <= 32767.0))
        throw RuntimeFailure::overflow();
    return qint16(r);
}

qint16 CInt(const QString& s) {
    return CInt(CDbl(s));
}

qint32 CLng(double value) {
    const double r = roundHalfEven(value);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throw RuntimeFailure::overflow();
    return qint32(r);
}

qint32 CLng(const QString& s) {
    return CLng(CDbl(s));
}

double CDbl(const QString& s) {
    bool ok = false;
    const double v = parseNumeric(s, &ok);
    if (!ok)
        throw RuntimeFailure::typeMismatch();
    return v;
}

qint16 toInteger(qint64 value) {
    if (value < -32768 || value > 32767)
        throw RuntimeFailure::overflow();
    return qint16(value);
}

QString CStr(double value) {
    if (value == std::trunc(value) && std::fabs(value) < 1e15)
        return QString::number(qint64(value));
    return QString::number(value, 'g', 15);
}

QString CStr(qint64 value) {
    return QString::number(value);
}

QString Str(double value) {
    const QString text = CStr(value);
    return value < 0 ? text : QLatin1Char(' ') + text;
}

} // namespace zt::vb
