#include "builders/colours.h"
#include "builders/rulegen.h"

#include <gtest/gtest.h>

using namespace zt;

TEST(Generators, RuleTag) {
    const struct {
        RuleValues values;
        QString tag;
    } cases[] = {
        {{.width = "", .percentage = true}, "<HR>"},
        // Only the exact "Center" is the rule's default.
        {{.align = "center"}, R"(<HR align="center">)"},
        {{.align = ""}, R"(<HR align="">)"},
        // Typed text goes in as it is, quotes and blanks too.
        {{.size = " 2", .colour = R"(red" onclick=")"}, R"(<HR color="red" onclick="" size=" 2">)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ruleTag(c.values), c.tag);
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
