// Positioned boxes in the real engine: their stacking order, moving them with the
// pointer, and the details that show the page's hidden parts.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "platform/runtimefailure.h"

#include <gtest/gtest.h>

namespace zt::test {
namespace {

class Positioning : public ::testing::Test {
protected:
    void TearDown() override { engine.setBrowseMode(false); }

    std::string js(const QString& script) {
        return evaluate(engine, script).toString().toStdString();
    }

    WebPageEngine& engine = EngineKit::web();
};

TEST_F(Positioning, StackingCommandsSetTheZIndexOfTheBoxOfTheSelection) {
    const QString page = QStringLiteral(R"(<div style="position: absolute; z-index: 3;">high</div>)"
                                        R"(<p style="position: relative; z-index: -2;">low</p>)"
                                        R"(<div id="box" style="%1">in <b>bold</b></div>)");
    const struct {
        DhtmlCommand id;
        const char* before;
        const char* after;
        const char* select; // nullptr: the box itself, whole
    } cases[] = {
        {DECMD_BRING_TO_FRONT, "position: absolute; color: red;",
         "position: absolute; color: red; z-index: 4;", "bold"},
        {DECMD_BRING_TO_FRONT, "position: absolute;", "position: absolute; z-index: 4;", nullptr},
        {DECMD_SEND_TO_BACK, "position: absolute; z-index: 9;", "position: absolute; z-index: -3;",
         "in"},
        {DECMD_BRING_FORWARD, "position: relative; z-index: 7;", "position: relative; z-index: 8;",
         "bold"},
        {DECMD_SEND_BACKWARD, "position: fixed;", "position: fixed; z-index: -1;", "in"},
        {DECMD_BRING_ABOVE_TEXT, "position: absolute; z-index: -5;",
         "position: absolute; z-index: 1;", "in"},
        {DECMD_BRING_ABOVE_TEXT, "position: absolute; z-index: 2;",
         "position: absolute; z-index: 2;", "in"},
        {DECMD_SEND_BELOW_TEXT, "position: absolute;", "position: absolute; z-index: -1;", "in"},
        {DECMD_SEND_BELOW_TEXT, "position: absolute; z-index: -4;",
         "position: absolute; z-index: -4;", "in"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.before) + " " + std::to_string(c.id));
        engine.setDocumentHTML(page.arg(QLatin1String(c.before)));
        if (c.select)
            ASSERT_TRUE(engine.selectText(QLatin1String(c.select)));
        else
            evaluate(engine, "const r = document.createRange();"
                             "r.selectNode(document.getElementById('box'));"
                             "getSelection().removeAllRanges(); getSelection().addRange(r);");
        engine.execCommand(c.id);
        EXPECT_EQ(engine.documentHTML().toStdString(),
                  pageWithMarker(page.arg(QLatin1String(c.after)) + "\r\n").toStdString());
    }

    // Outside any positioned box each of them fails and changes nothing.
    engine.setDocumentHTML(QStringLiteral("<p>plain <b>text</b></p>"));
    const QString plain = engine.documentHTML();
    ASSERT_TRUE(engine.selectText(QStringLiteral("text")));
    for (const auto& c : cases)
        EXPECT_THROW(engine.execCommand(c.id), RuntimeFailure) << c.id;
    EXPECT_EQ(engine.documentHTML(), plain);
}

} // namespace
} // namespace zt::test
