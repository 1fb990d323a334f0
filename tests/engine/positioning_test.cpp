// Positioned boxes in the real engine: their stacking order, moving them with the
// pointer, and the details that show the page's hidden parts.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "platform/runtimefailure.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

using namespace std::chrono_literals;

class Positioning : public ::testing::Test {
protected:
    void TearDown() override {
        engine.setSnapToGrid(false);
        engine.setShowDetails(false);
        engine.setBrowseMode(false);
        engine.widget()->hide();
    }

    std::string js(const QString& script) {
        return evaluate(engine, script).toString().toStdString();
    }

    WebPageEngine& engine = EngineKit::web();
};

TEST_F(Positioning, StackingCommandsSetTheZIndexOfTheBoxOfTheSelection) {
    const QString page = QStringLiteral(R"(<div style="position: absolute; z-index: 3;">high</div>)"
                                        R"(<p style="position: relative; z-index: -2;">low</p>)"
                                        R"(<div id="box" style="%1">in <b>bold</b></div>)");
    // The box's position and other properties, its z-index before and after (none:
    // kNone), and the text selected (nullptr: the box itself, whole).
    const int kNone = 100;
    const struct {
        DhtmlCommand id;
        const char* position;
        int before, after;
        const char* select;
    } cases[] = {
        {DECMD_BRING_TO_FRONT, "absolute; color: red", kNone, 4, "bold"},
        {DECMD_BRING_TO_FRONT, "absolute", kNone, 4, nullptr},
        {DECMD_SEND_TO_BACK, "absolute", 9, -3, "in"},
        {DECMD_BRING_FORWARD, "relative", 7, 8, "bold"},
        {DECMD_SEND_BACKWARD, "fixed", kNone, -1, "in"},
        {DECMD_BRING_ABOVE_TEXT, "absolute", -5, 1, "in"},
        {DECMD_BRING_ABOVE_TEXT, "absolute", 2, 2, "in"},
        {DECMD_SEND_BELOW_TEXT, "absolute", kNone, -1, "in"},
        {DECMD_SEND_BELOW_TEXT, "absolute", -4, -4, "in"},
    };
    const auto style = [](const char* position, int z) {
        return QStringLiteral("position: %1;").arg(QLatin1String(position)) +
               (z == kNone ? QString() : QStringLiteral(" z-index: %1;").arg(z));
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(style(c.position, c.before).toStdString() + " " + std::to_string(c.id));
        engine.setDocumentHTML(page.arg(style(c.position, c.before)));
        if (c.select)
            ASSERT_TRUE(engine.selectText(QLatin1String(c.select)));
        else
            evaluate(engine, "const r = document.createRange();"
                             "r.selectNode(document.getElementById('box'));"
                             "getSelection().removeAllRanges(); getSelection().addRange(r);");
        engine.execCommand(c.id);
        EXPECT_EQ(engine.documentHTML().toStdString(),
                  pageWithMarker(page.arg(style(c.position, c.after)) + "\r\n").toStdString());
    }

    // Outside any positioned box each of them fails and changes nothing.
    engine.setDocumentHTML(QStringLiteral("<p>plain <b>text</b></p>"));
    const QString plain = engine.documentHTML();
    ASSERT_TRUE(engine.selectText(QStringLiteral("text")));
    for (const auto& c : cases)
        EXPECT_THROW(engine.execCommand(c.id), RuntimeFailure) << c.id;
    EXPECT_EQ(engine.documentHTML(), plain);
}

TEST_F(Positioning, ABoxMovesByItsEdgeAndSnapsToTheGrid) {
    QWidget* view = engine.widget();
    view->resize(400, 300);
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view));
    const struct {
        bool snap;
        QPoint from;
        const char* place;
    } cases[] = {
        {false, {37, 50}, "left: 63px; top: 47px;"},
        {true, {37, 50}, "left: 60px; top: 50px;"},
        {false, {90, 60}, "left: 40px; top: 30px;"}, // inside the box: its text
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.place);
        engine.setSnapToGrid(c.snap);
        engine.setDocumentHTML(QStringLiteral(
            R"(<div style="position: absolute; left: 40px; top: 30px; width: 100px; height: 60px;">box</div>)"));
        QWidget* input = view->focusProxy();
        ASSERT_NE(input, nullptr);
        // The page shows the cursor that its last move called for, on the window.
        QTest::mouseMove(input, c.from - QPoint(1, 0));
        QTest::mouseMove(input, c.from);
        const QWindow* window = view->window()->windowHandle();
        const bool onEdge = c.from.x() < 45;
        EXPECT_TRUE(eventually(
            [&] { return (window->cursor().shape() == Qt::SizeAllCursor) == onEdge; }, 1s));
        QTest::mousePress(input, Qt::LeftButton, {}, c.from);
        QTest::mouseMove(input, c.from + QPoint(23, 17));
        QTest::mouseRelease(input, Qt::LeftButton, {}, c.from + QPoint(23, 17));
        EXPECT_TRUE(eventually([&] { return engine.documentHTML().contains(c.place); }))
            << engine.documentHTML().toStdString();
    }
}

TEST_F(Positioning, DetailsShowHiddenPartsWithoutChangingTheDocument) {
    engine.setDocumentHTML(
        QStringLiteral("<table><tr><td>cell</td></tr></table><!-- Main menu starts here -->"
                       "<div id=\"menu\">menu</div><script>var shown = 0;</script>"
                       R"(<span style="position: relative;">box</span><!----><p>text</p>)"));
    const QString html = engine.documentHTML();
    const QString marks = QStringLiteral(
        "Array.from(document.querySelector('zt-details').shadowRoot.querySelectorAll('span'))"
        ".map(m => m.textContent).join('|')");
    const QString outlines =
        QStringLiteral("['td', 'table', 'div', 'span', 'p'].map(n => "
                       "getComputedStyle(document.querySelector(n)).outlineStyle).join(' ')");
    // The comment's mark stands where the comment is: at the box after it.
    const QString markAtMenu = QStringLiteral(
        "(() => { const mark = document.querySelector('zt-details').shadowRoot"
        ".querySelector('span').getBoundingClientRect();"
        "const menu = document.getElementById('menu').getBoundingClientRect();"
        "return String(mark.left === menu.left && mark.top < menu.top && mark.bottom > menu.top);"
        "})()");

    engine.setShowDetails(true);
    EXPECT_EQ(js(marks), "<!-- Main menu starts here -->|<script>|<!-- -->");
    EXPECT_EQ(js(outlines), "dotted dotted dotted dotted none");
    EXPECT_EQ(js(markAtMenu), "true");
    EXPECT_EQ(engine.documentHTML(), html);

    // The marks follow an edit.
    evaluate(engine, "document.body.prepend(document.createElement('h1'))");
    EXPECT_TRUE(eventually([&] { return js(markAtMenu) == "true"; }));
    engine.setDocumentHTML(html);

    engine.setBrowseMode(true);
    EXPECT_EQ(js("String(document.querySelector('zt-details'))"), "null");
    engine.setBrowseMode(false);
    EXPECT_EQ(js(marks), "<!-- Main menu starts here -->|<script>|<!-- -->");

    engine.setShowDetails(false);
    EXPECT_EQ(js("String(document.querySelector('zt-details'))"), "null");
    EXPECT_EQ(js(outlines), "none none none none none");
    EXPECT_EQ(engine.documentHTML(), html);
}

} // namespace
} // namespace zt::test
