#include "platform/vbstrings.h"
#include "testhelpers.h"

#include <gtest/gtest.h>

#include <functional>

using namespace zt;
using namespace zt::vb;
using zt::test::failureOf;

TEST(VbStrings, SearchesAreOneBasedWithZeroForAbsent) {
    struct Case {
        int start;
        const char* s;
        const char* find;
        int expected;
    } cases[] = {
        {1, "<b>text</b>", "</b>", 8},
        {1, "abc", "x", 0},
        {2, "abcabc", "a", 4},
        {4, "abcabc", "abc", 4},
        {7, "abcabc", "a", 0},
        {1, "", "a", 0},
        {3, "abc", "", 3},
        {1, "ABC", "b", 0},
        {6, "abcabc", "c", 6},
    };
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

TEST(VbStrings, BadStartsAndLengthsFailWithFive) {
    const std::function<void()> calls[] = {
        [] { InStr(0, "abc", "a"); },
        [] { InStr(-3, "abc", "a"); },
        [] { InStrRev("abc", "a", 0); },
        [] { InStrRev("abc", "a", -2); },
        [] { Mid("abc", 0, 1); },
        [] { Mid("abc", 1, -2); },
        [] { Left("abc", -1); },
        [] { Right("abc", -1); },
        [] { Replace("abc", "a", "b", 0); },
        [] { Asc(""); },
    };
    for (const auto& call : calls)
        EXPECT_EQ(failureOf(call), RuntimeFailure::InvalidProcedureCall);
}

TEST(VbStrings, PiecesAndReplace) {
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 4), "def");
    EXPECT_EQ(Mid("abc", 9, 2), "");
    EXPECT_EQ(Left("abc", 9), "abc");
    EXPECT_EQ(Right("abcdef", 2), "ef");
    EXPECT_EQ(Replace("a-b-c", "-", "+"), "a+b+c");
    EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(Replace("", "a", "b"), "");
    EXPECT_EQ(Replace("abcabc", "a", "x", 2), "bcxbc") << "the result starts at start";
    EXPECT_EQ(Replace("abcabc", "a", "x", 1, 1), "xbcabc");
    EXPECT_EQ(Replace("aBc", "b", "x"), "aBc") << "binary comparison by default";
    EXPECT_EQ(Trim("  a b  "), "a b");
    // Case changes keep the length, so positions found in a converted copy hold.
    EXPECT_EQ(LCase(QString::fromUtf8("A\u0130B")).size(), 3);
    EXPECT_EQ(UCase(QString::fromUtf8("stra\u00dfe")), QString::fromUtf8("STRA\u00dfE"));
    EXPECT_EQ(Hex(255), "FF");
    EXPECT_EQ(Hex(0xFF8000), "FF8000");
}

TEST(VbStrings, NumericTestAndConversions) {
    for (const char* yes :
         {"0", "1.5", "-3", "+2", " 7 ", "1e3", "1E-2", "2d2", ".5", "5.", "&HFF", "&o17"})
        EXPECT_TRUE(IsNumeric(yes)) << yes;
    for (const char* no : {"", " ", "abc", "1.2.3", "1e", "e3", "--1", "12px", "&H", "$5", "1,000"})
        EXPECT_FALSE(IsNumeric(no)) << no;

    EXPECT_EQ(CInt("  42 "), 42);
    EXPECT_EQ(CInt(2.5), 2) << "halves round to even";
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-32768.0), -32768);
    EXPECT_EQ(CInt("&HFF"), 255);
    EXPECT_EQ(failureOf([] { CInt(32767.5); }), RuntimeFailure::Overflow);
    EXPECT_EQ(failureOf([] { CInt("40000"); }), RuntimeFailure::Overflow);
    EXPECT_EQ(failureOf([] { CInt("abc"); }), RuntimeFailure::TypeMismatch);
    EXPECT_EQ(failureOf([] { CInt(""); }), RuntimeFailure::TypeMismatch);
    EXPECT_EQ(failureOf([] { toInteger(32768); }), RuntimeFailure::Overflow);
    EXPECT_EQ(failureOf([] { toInteger(-32769); }), RuntimeFailure::Overflow);
    EXPECT_EQ(toInteger(32767), 32767);
    EXPECT_EQ(CLng("100000"), 100000);

    EXPECT_DOUBLE_EQ(Val(" 12 34abc"), 1234);
    EXPECT_DOUBLE_EQ(Val("abc"), 0);
    EXPECT_DOUBLE_EQ(Val("-1.5e1x"), -15);
    EXPECT_EQ(CStr(12.0), "12");
    EXPECT_EQ(CStr(1.5), "1.5");
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(-5), "-5");
}
