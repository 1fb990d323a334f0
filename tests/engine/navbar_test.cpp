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

    // Each link's top, left and right edge.
    const QStringList boxes =
        read("Array.from(document.querySelectorAll('#navigation a'), a => { const r = "
             "a.getBoundingClientRect(); return [r.top, r.left, r.right].map(Math.round).join(); "
             "}).join(' ')")
            .split(' ');
    ASSERT_EQ(boxes.size(), 6) << boxes.join(' ').toStdString();
    for (int i = 1; i < boxes.size(); ++i) {
        EXPECT_EQ(boxes[i].section(',', 0, 0), boxes[0].section(',', 0, 0)) << i;
        EXPECT_GT(boxes[i].section(',', 1, 1).toInt(), boxes[i - 1].section(',', 2, 2).toInt())
            << i;
    }
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
