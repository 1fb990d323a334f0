#include "builders/colours.h"
#include "builders/headinggen.h"
#include "builders/highlightgen.h"
#include "builders/rulegen.h"

#include <gtest/gtest.h>

using namespace zt;

TEST(Generators, RuleTag) {
    const struct {
        RuleValues values;
        QString tag;
    } cases[] = {
        {{}, "<HR>"},
        {{.width = "50", .percentage = true, .noShade = true, .align = "Right"},
         R"(<HR width="50%" align="Right" NOSHADE>)"},
        {{.width = "", .percentage = true}, "<HR>"},
        {{.width = "300"}, R"(<HR width="300">)"},
        {{.width = "1",
          .percentage = true,
          .size = "4",
          .noShade = true,
          .align = "Left",
          .colour = "#00FF00"},
         R"(<HR width="1%" align="Left" color="#00FF00" size="4" NOSHADE>)"},
        // Only the exact "Center" is the rule's default.
        {{.align = "center"}, R"(<HR align="center">)"},
        {{.align = ""}, R"(<HR align="">)"},
        // Typed text goes in as it is, quotes and blanks too.
        {{.size = " 2", .colour = R"(red" onclick=")"}, R"(<HR color="red" onclick="" size=" 2">)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ruleTag(c.values), c.tag);
}

TEST(Generators, HeadingTag) {
    const struct {
        HeadingValues values;
        QString tag;
    } cases[] = {
        {{3, "Center", "Intro"}, R"(<H3 align="Center">Intro</H3>)"},
        {{1, "Left", ""}, R"(<H1 align="Left"></H1>)"},
        {{6, "", "a <b>b</b>"}, R"(<H6 align="">a <b>b</b></H6>)"},
        {{2, "Right", "two\r\nlines"}, "<H2 align=\"Right\">two\r\nlines</H2>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(headingTag(c.values), c.tag);
}

TEST(Generators, HighlightSpans) {
    const struct {
        HighlightValues values;
        QString fromDialog;
        QString fromVisual;
    } cases[] = {
        {{"#ff0000", "word"},
         R"(<span style="background-color: #FF0000">word</span> )",
         R"(<span style="background-color:#ff0000">word</span> &nbsp;)"},
        {{"", "x"},
         R"(<span style="background-color: ">x</span> )",
         R"(<span style="background-color:">x</span> &nbsp;)"},
        {{"yellow", ""},
         R"(<span style="background-color: YELLOW"></span> )",
         R"(<span style="background-color:yellow"></span> &nbsp;)"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(highlightSpan(c.values), c.fromDialog);
        EXPECT_EQ(visualHighlightSpan(c.values), c.fromVisual);
    }
}

TEST(Generators, HexColourReadsThePickersValueBlueFirst) {
    const struct {
        quint32 bgr;
        QString hex;
    } cases[] = {
        {0x0000FF, "#FF0000"}, {0x00FF00, "#00FF00"}, {0xFF0000, "#0000FF"}, {15, "#0F0000"},
        {0x0A0B0C, "#0C0B0A"}, {0xFFFFFF, "#FFFFFF"}, {0x000100, "#000100"}, {0x010000, "#000001"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(hexColour(c.bgr), c.hex) << c.bgr;
}

TEST(Generators, NamedColoursInTheirOrder) {
    EXPECT_EQ(namedColours(),
              QStringList({"aqua", "black", "blue", "fuchsia", "gray", "green", "lime", "maroon",
                           "navy", "olive", "purple", "red", "silver", "teal", "white", "yellow"}));
}
