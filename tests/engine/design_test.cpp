// The design surface of the real engine, driven by real mouse and key events: a work
// area that is a design surface, and a strip above it whose content is dragged in.

#include "enginekit.h"

#include "platform/engine/webengine.h"

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

using namespace std::chrono_literals;

class DesignSurface : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        s = new Surfaces;
        s->window.resize(500, 500);
        auto* layout = new QVBoxLayout(&s->window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        s->strip.widget()->setFixedHeight(100);
        layout->addWidget(s->strip.widget());
        layout->addWidget(s->work.widget());
        s->work.setDesignSurface(true);
        s->work.acceptDropsFrom(s->strip);
        s->window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&s->window));
    }
    static void TearDownTestSuite() { delete s; }
    void TearDown() override {
        work().setSnapToGrid(false);
        work().setBrowseMode(false);
    }

    static WebPageEngine& work() { return s->work; }
    static QWidget* input(WebPageEngine& engine) { return engine.widget()->focusProxy(); }
    static QString body(WebPageEngine& engine) {
        const QString page = engine.documentHTML();
        const qsizetype start = page.indexOf("<BODY>") + 6;
        return page.mid(start, page.indexOf("</BODY>") - start);
    }
    static void drag(QWidget* widget, QPoint from, QPoint by) {
        QTest::mouseMove(widget, from);
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        QTest::mouseMove(widget, from + by / 2);
        QTest::mouseMove(widget, from + by);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, from + by);
    }

    struct Surfaces {
        MemoryClipboard clipboard;
        QWidget window;
        WebPageEngine strip{clipboard, &window};
        WebPageEngine work{clipboard, &window};
    };
    static inline Surfaces* s = nullptr;
};

TEST_F(DesignSurface, DragsHandlesAndKeysWriteTheBoxsInlineStyleOneUndoStepEach) {
    const QString box = R"(<div id="box" style="position: absolute; %1">text</div>)";
    const QString place = "left: %1px; top: %2px; width: %3px; height: %4px;";
    enum Mode { Plain, Snap, Browse };
    const struct {
        const char* what;
        Mode mode;
        QPoint press, by;
        Qt::Key key; // instead of a drag
        int left, top, width, height;
    } cases[] = {
        {"move", Plain, {90, 60}, {23, 17}, {}, 66, 47, 100, 60},
        {"move on the grid", Snap, {90, 60}, {23, 17}, {}, 70, 50, 100, 60},
        {"bottom right handle", Plain, {142, 89}, {20, 11}, {}, 43, 30, 120, 71},
        {"top left handle on the grid", Snap, {43, 30}, {13, 4}, {}, 60, 30, 83, 60},
        {"nudge", Plain, {90, 60}, {}, Qt::Key_Right, 44, 30, 100, 60},
        {"nudge to the next grid line", Snap, {90, 60}, {}, Qt::Key_Right, 50, 30, 100, 60},
        {"no drag in browse mode", Browse, {90, 60}, {23, 17}, {}, 43, 30, 100, 60},
        {"no key in browse mode", Browse, {90, 60}, {}, Qt::Key_Down, 43, 30, 100, 60},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        work().setSnapToGrid(c.mode == Snap);
        work().setBrowseMode(c.mode == Browse);
        work().setDocumentHTML(box.arg(place.arg(43).arg(30).arg(100).arg(60)));
        const QString before = body(work());
        // A click selects the box; then a drag from the same point, or a key.
        QWidget* view = input(work());
        QTest::mouseClick(view, Qt::LeftButton, {}, c.press);
        if (c.key)
            QTest::keyClick(view, c.key);
        else
            drag(view, c.press, c.by);
        const QString after = box.arg(place.arg(c.left).arg(c.top).arg(c.width).arg(c.height));
        EXPECT_TRUE(eventually([&] { return body(work()) == after + "\r\n"; }, 1s))
            << body(work()).toStdString();
        if (c.mode == Browse)
            continue;
        EXPECT_EQ(evaluate(work(), "!!document.querySelector('zt-design')").toBool(), true);
        work().execCommand(DECMD_UNDO);
        EXPECT_EQ(body(work()), before);
    }

    // A box in the flow is taken out of it where it stood, at the body's margin.
    work().setBrowseMode(false);
    work().setDocumentHTML(R"(<div style="width: 100px;">text</div>)");
    drag(input(work()), {30, 15}, {10, 5});
    EXPECT_TRUE(eventually([&] {
        return body(work()).contains("width: 100px; position: absolute; left: 18px; top: 13px;");
    }));
}

TEST_F(DesignSurface, ASecondClickPutsACaretInTheText) {
    work().setDocumentHTML(
        R"(<div style="position: absolute; left: 10px; top: 10px; width: 100px;">New Label</div>)");
    const QString before = body(work());
    QWidget* view = input(work());
    QTest::mouseClick(view, Qt::LeftButton, {}, {40, 18});
    QTest::keyClick(view, Qt::Key_X);
    EXPECT_EQ(body(work()), before) << "a selected box is not typed into";
    QTest::mouseClick(view, Qt::LeftButton, {}, {100, 18}, 600);
    QTest::keyClick(view, Qt::Key_X);
    EXPECT_TRUE(eventually([&] { return body(work()).contains(">New Labelx</div>"); }, 1s))
        << body(work()).toStdString();
}

TEST_F(DesignSurface, ADropFromTheStripLandsInTheBoxUnderThePointer) {
    const QString field = R"(<input type="text" name="a">)";
    s->strip.setDocumentHTML(field);
    const QString strip = s->strip.documentHTML();
    const QString form = R"(<div id="MorvaneForm" style="position:relative;left:0px;top:0px;)"
                         R"(width:400px;height:300px;background-color:#FFFFFF;color:#000000;)"
                         R"(border-width:1;border-style:solid;">)";
    const struct {
        bool snap, browse;
        QPoint to; // in the work area
        const char* place;
    } cases[] = {
        {false, false, {58, 48}, "left: 49px; top: 39px;"},
        {true, false, {58, 48}, "left: 50px; top: 40px;"},
        {false, true, {58, 48}, nullptr},
        {false, false, {58, -20}, nullptr}, // let go over the strip again
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.to.y());
        work().setSnapToGrid(c.snap);
        work().setBrowseMode(c.browse);
        work().setDocumentHTML(form);
        const QString before = body(work());
        const QPoint to = input(s->strip)->mapFromGlobal(input(work())->mapToGlobal(c.to));
        drag(input(s->strip), {20, 10}, to - QPoint(20, 10));
        const QString dropped =
            QString(R"(<input type="text" name="a" style="position: absolute; %1"></div>)")
                .arg(c.place);
        EXPECT_EQ(eventually([&] { return body(work()).contains(dropped); }, 1s),
                  c.place != nullptr)
            << body(work()).toStdString();
        EXPECT_TRUE(body(work()).startsWith(
            R"(<div id="MorvaneForm" style="position: relative; left: 0px; top: 0px; )"
            R"(width: 400px; height: 300px; background-color: #ffffff; color: #000000;)"));
        EXPECT_EQ(s->strip.documentHTML(), strip);
        if (c.place && !c.browse) {
            work().execCommand(DECMD_UNDO);
            EXPECT_EQ(body(work()), before);
        }
    }
}

} // namespace
} // namespace zt::test
