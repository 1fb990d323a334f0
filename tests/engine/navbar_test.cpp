// The Navigation Bar Creator's preview on the real engine: the bar is laid out as a
// browser lays it out, and follows the fields on Preview.
#include "enginekit.h"

#include "navbar/navmaker.h"
#include "platform/engine/webengine.h"
#include "shell/zelvo.h"
#include "support/testprogram.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(NavBarPreview, TheLinksStandSideBySideInTheirStyle) {
    auto program = std::make_unique<TestProgram>();
    program->services.makeEngine = [&](QWidget* parent) {
        return std::make_unique<WebPageEngine>(program->clipboard, parent);
    };
    program->event([&] { program->forms->get<Zelvo>().mnuNavigator(); });
    NavMaker& maker = program->forms->get<NavMaker>();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(maker.window()));
    auto& preview = static_cast<WebPageEngine&>(*maker.ui.Result);
    const auto read = [&](const char* script) { return evaluate(preview, script).toString(); };

    // Six links on one line, each to the right of the one before.
    EXPECT_EQ(read("(r => r.length + ' ' + r.every((b, i) => !i || (b.top === r[0].top && b.left > "
                   "r[i - 1].right)))(Array.from(document.querySelectorAll('#navigation a'), a => "
                   "a.getBoundingClientRect()))"),
              "6 true");
    const char* look =
        "(a => [a.paddingLeft, a.color, getComputedStyle(document."
        "getElementById('navigation')).backgroundColor, document.designMode, "
        "document.body.isContentEditable].join())(getComputedStyle(document.querySelector("
        "'#navigation a')))";
    EXPECT_EQ(read(look), "10px,rgb(0, 0, 238),rgb(248, 245, 233),off,false");

    maker.ui.txtLColour.setText("#800000");
    maker.ui.txtBasicBGColour.setText("#000080");
    program->event([&] { maker.ui.btnPreview->click(); });
    EXPECT_TRUE(eventually([&] {
        return read(look) == "10px,rgb(128, 0, 0),rgb(0, 0, 128),off,false";
    })) << read(look).toStdString();
    EXPECT_TRUE(program->failures.empty());
}
