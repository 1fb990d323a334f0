// The style page of the Style Sheet Creator running in its first step on the real
// engine, driven through the page's own controls and script.
#include "enginekit.h"

#include "pagehelpers/stylesheet.h"
#include "platform/engine/webengine.h"
#include "support/testprogram.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(StyleSheetPage, ItsControlsWriteTheRuleAndStyleTheSample) {
    auto program = std::make_unique<TestProgram>();
    program->services.makeEngine = [&](QWidget* parent) {
        return std::make_unique<WebPageEngine>(program->clipboard, parent);
    };
    styleSheet* step = nullptr;
    program->event([&] { step = &program->forms->get<styleSheet>(); });
    ASSERT_TRUE(step);
    const QVariant answer = evaluate(static_cast<WebPageEngine&>(*step->ui.webber), R"((() => {
        for (const [id, value, kind] of [["element", "h1", "change"], ["color", "navy", "input"],
                 ["fontSize", "20", "input"], ["borderStyle", "solid", "change"],
                 ["borderWidth", "2", "input"]]) {
            const control = document.getElementById(id);
            control.value = value;
            control.dispatchEvent(new Event(kind, {bubbles: true}));
        }
        document.getElementById("add").click();
        const heading = getComputedStyle(document.querySelector("#sample h1"));
        return [document.getElementById("rule").value, document.getElementById("sheet").value,
                heading.color, heading.borderTopStyle].join("|");
    })())");
    const QString rule = "h1 {\n    color: navy;\n    font-size: 20pt;\n    border: 2px solid;\n}";
    EXPECT_EQ(answer.toString(), rule + "|" + rule + "\n|rgb(0, 0, 128)|solid");
    EXPECT_TRUE(program->failures.empty());
    program.reset();
    failAtGuard();
}
