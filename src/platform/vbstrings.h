#pragma once

#include <QString>
#include <QtGlobal>

// String routines with the run time's own rules: searches are 1-based and give 0
// for "not found", bad starts and lengths fail with error 5, and the 16-bit
// conversions fail with error 6. The program's position arithmetic depends on
// these rules exactly, so they are not Qt's.
namespace zt::vb {

enum class Compare { Binary, Text };

// Position of find in s, searching from start (1-based); 0 when absent.
// A start below 1 fails with error 5.
int InStr(int start, const QString& s, const QString& find, Compare compare = Compare::Binary);
int InStr(const QString& s, const QString& find, Compare compare = Compare::Binary);

// Last position of find in s that ends at or before start (-1 means the end).
// A start of 0 or below -1 fails with error 5.
int InStrRev(const QString& s, const QString& find, int start = -1,
             Compare compare = Compare::Binary);

// length -1 means "to the end". start below 1 or a negative length fails with 5.
QString Mid(const QString& s, int start, int length = -1);
QString Left(const QString& s, int length);
QString Right(const QString& s, int length);

// Every occurrence, from the first character, binary comparison unless told.
// The result starts at start, as the run time's Replace does.
QString Replace(const QString& s, const QString& find, const QString& with, int start = 1,
                int count = -1, Compare compare = Compare::Binary);

QString LCase(const QString& s);
QString UCase(const QString& s);
QString Trim(const QString& s);
QString LTrim(const QString& s);
QString RTrim(const QString& s);
int Len(const QString& s);
QString Chr(int code);
int Asc(const QString& s);
QString Space(int count);
QString Hex(qint64 value);

// The run time's numeric test: blanks around, an optional sign, digits with an
// optional decimal point, an optional exponent (E or D), or &H / &O literals.
// Currency signs and digit grouping are not accepted.
bool IsNumeric(const QString& s);

// The leading number of s, blanks ignored; 0 when there is none. Never fails.
double Val(const QString& s);

// Conversions: a text that is not numeric fails with 13, a value outside the
// type's range with 6. Halves round to even.
qint16 CInt(double value);
qint16 CInt(const QString& s);
qint32 CLng(double value);
qint32 CLng(const QString& s);
double CDbl(const QString& s);

// A value held in a 16-bit integer variable: fails with 6 outside -32768..32767.
qint16 toInteger(qint64 value);

// Number to text without the leading blank that Str gives positives.
QString CStr(double value);
QString CStr(qint64 value);
// Number to text with the blank for the sign of non-negative numbers.
QString Str(double value);

} // namespace zt::vb
