#include "platform/vbstrings.h"
#include "testhelpers.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::vb;
using zt::test::failureOf;

TEST(VbStrings, SearchesAreOneBasedWithZeroForAbsent) {
    struct Case {
        int start;
        const char* s;
        const char* find;
        int expected;
    } cases[] = {{1, "<b>text</b>", "</b>", 8},
                 {1, "abc", "x", 0},
                 {2, "abcabc", "a", 4},
                 {4, "abcabc", "abc", 4},
                 {7, "abcabc", "a", 0},
                 {1, "", "a", 0},
                 {3, "abc", "", 3},
                 {1, "ABC", "b", 0},
                 {6, "abcabc", "c", 6}};
    for (const auto& c : cases)
        EXPECT_EQ(InStr(c.start, c.s, c.find), c.expected) << c.s << " / " << c.find;
    EXPECT_EQ(InStr(1, "ABC", "b", Compare::Text), 2);
    // Backwards, the search ends at start.
    EXPECT_EQ(InStrRev("a<b>c<b>", "<b>"), 6);
    EXPECT_EQ(InStrRev("a<b>c<b>", "<b>", 7), 2);
    EXPECT_EQ(InStrRev("a<b>c<b>", "<b>", 8), 6);
    EXPECT_EQ(InStrRev("abc", "x"), 0);
    EXPECT_EQ(InStrRev("abc", "a", 9), 0);
}

TEST(VbStrings, BadArgumentsFailWithTheirNumbers) {
    const std::pair<std::function<void()>, int> calls[] = {
        {[] { InStr(0, "abc", "a"); }, RuntimeFailure::InvalidProcedureCall},
        {[] { InStr(-3, "abc", "a"); }, RuntimeFailure::InvalidProcedureCall},
        {[] { InStrRev("abc", "a", 0); }, RuntimeFailure::InvalidProcedureCall},
        {[] { InStrRev("abc", "a", -2); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Mid("abc", 0, 1); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Mid("abc", 1, -2); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Left("abc", -1); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Right("abc", -1); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Replace("abc", "a", "b", 0); }, RuntimeFailure::InvalidProcedureCall},
        {[] { Asc(""); }, RuntimeFailure::InvalidProcedureCall},
        {[] { CInt(32767.5); }, RuntimeFailure::Overflow},
        {[] { CInt("40000"); }, RuntimeFailure::Overflow},
        {[] { CInt("abc"); }, RuntimeFailure::TypeMismatch},
        {[] { CInt(""); }, RuntimeFailure::TypeMismatch},
        {[] { toInteger(32768); }, RuntimeFailure::Overflow},
        {[] { toInteger(-32769); }, RuntimeFailure::Overflow},
    };
    for (std::size_t i = 0; i < std::size(calls); ++i)
        EXPECT_EQ(failureOf(calls[i].first), calls[i].second) << "call " << i;
}

TEST(VbStrings, PiecesReplaceAndConversions) {
    // The comparisons are binary by default, and Replace's result starts at start.
    const std::pair<QString, QString> texts[] = {
        {Mid("abcdef", 2, 3), "bcd"},
        {Mid("abcdef", 4), "def"},
        {Mid("abc", 9, 2), ""},
        {Left("abc", 9), "abc"},
        {Right("abcdef", 2), "ef"},
        {Replace("a-b-c", "-", "+"), "a+b+c"},
        {Replace("aaa", "a", "aa"), "aaaaaa"},
        {Replace("", "a", "b"), ""},
        {Replace("abcabc", "a", "x", 2), "bcxbc"},
        {Replace("abcabc", "a", "x", 1, 1), "xbcabc"},
        {Replace("aBc", "b", "x"), "aBc"},
        {Trim("  a b  "), "a b"},
        {UCase(QString::fromUtf8("stra\u00dfe")), QString::fromUtf8("STRA\u00dfE")},
        {Hex(255), "FF"},
        {Hex(0xFF8000), "FF8000"},
        {CStr(12.0), "12"},
        {CStr(1.5), "1.5"},
        {Str(5), " 5"},
        {Str(-5), "-5"}};
    for (const auto& [got, want] : texts)
        EXPECT_EQ(got, want);
    // Case changes keep the length, so positions found in a converted copy hold.
    EXPECT_EQ(LCase(QString::fromUtf8("A\u0130B")).size(), 3);

    // Halves round to even.
    const std::pair<double, double> numbers[] = {
        {CInt("  42 "), 42},      {CInt(2.5), 2},           {CInt(3.5), 4},
        {CInt(-32768.0), -32768}, {CInt("&HFF"), 255},      {toInteger(32767), 32767},
        {CLng("100000"), 100000}, {Val(" 12 34abc"), 1234}, {Val("abc"), 0},
        {Val("-1.5e1x"), -15}};
    for (const auto& [got, want] : numbers)
        EXPECT_DOUBLE_EQ(got, want);
}

TEST(VbStrings, NumericTest) {
    for (const char* yes :
         {"0", "1.5", "-3", "+2", " 7 ", "1e3", "1E-2", "2d2", ".5", "5.", "&HFF", "&o17"})
        EXPECT_TRUE(IsNumeric(yes)) << yes;
    for (const char* no : {"", " ", "abc", "1.2.3", "1e", "e3", "--1", "12px", "&H", "$5", "1,000"})
        EXPECT_FALSE(IsNumeric(no)) << no;
}
