#include "builders/checks.h"

#include "support/scripted.h"

#include "platform/textcontrol.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// A field that checks itself on every change, as a dialog wires it.
struct CheckedField {
    explicit CheckedField(std::function<void(CheckedField&)> check) {
        field.addChangeHandler([this, check] { check(*this); });
    }
    TextControl field;
    TextControl checkee;
    ScriptedPrompts prompts;
};

} // namespace

TEST(CheckDigits, TakesOutOneBadCharacterPerBox) {
    const struct {
        QString typed;
        QString fallback;
        QString result;
        int boxes;
    } cases[] = {
        {"123", "2", "123", 0}, {"1e3", "2", "13", 1}, // passes the numeric check, not this one
        {"-1.5", "2", "15", 2}, {"a-b", "", "", 3},    {"x", "2", "2", 1}, {"x", "", "", 1},
        {"9 9", "", "99", 1},   {"", "2", "", 0}, // an emptied field is left alone
    };
    for (const auto& c : cases) {
        CheckedField f([&c](CheckedField& self) {
            checkDigits(self.field, self.checkee, self.prompts, c.fallback);
        });
        f.field.setText(c.typed);
        EXPECT_EQ(f.field.text(), c.result) << c.typed.toStdString();
        ASSERT_EQ(int(f.prompts.asked.size()), c.boxes) << c.typed.toStdString();
        for (const auto& box : f.prompts.asked)
            EXPECT_EQ(box.text + '|' + box.title + '|' + QString::number(box.style),
                      "Invalid Value||0");
    }
}
