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
