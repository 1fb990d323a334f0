// What the in-memory engine adds for the program's tests: a selection placed by
// offsets, typing, and the user's events.

#include "enginekit.h"

#include "platform/engine/memoryengine.h"
#include "platform/runtimefailure.h"

#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

TEST(MemoryEngine, SelectionByOffsetsInTheBodyContent) {
    MemoryClipboard clipboard;
    MemoryEngine engine(clipboard);
    setBody(engine, "<p>abc</p>");
    EXPECT_EQ(engine.bodyContent().toStdString(), "<p>abc</p>");

    const struct {
        int start, length;
        int clampedStart, clampedLength;
    } cases[] = {{3, 3, 3, 3}, {-4, 2, 0, 2}, {8, 50, 8, 2}, {99, 1, 10, 0}, {2, -1, 2, 0}};
    for (const auto& c : cases) {
        engine.setSelection(c.start, c.length);
        EXPECT_EQ(engine.selectionStart(), c.clampedStart) << c.start;
        EXPECT_EQ(engine.selectionLength(), c.clampedLength) << c.length;
    }

    engine.setSelection(3, 3);
    engine.execCommand(DECMD_COPY);
    EXPECT_EQ(clipboard.html().toStdString(), "abc");
    EXPECT_FALSE(engine.selectText(QStringLiteral("missing")));
    EXPECT_EQ(engine.selectionStart(), 3) << "a failed search leaves the selection";
}

TEST(MemoryEngine, TypingReplacesTheSelectionAndRaisesTheEvents) {
    MemoryClipboard clipboard;
    MemoryEngine engine(clipboard);
    EventLog log(engine);
    engine.setDocumentHTML(QStringLiteral("<BODY>one two</BODY>"));
    ASSERT_TRUE(engine.selectText(QStringLiteral("two")));
    for (QChar key : QStringLiteral("<2!"))
        engine.typeKey(key);
    engine.moveMouse();
    engine.changeDisplay();
    EXPECT_EQ(engine.bodyContent().toStdString(), "one &lt;2!");
    EXPECT_EQ(log.keys.toStdString(), "<2!");
    EXPECT_EQ(log.failures, std::vector<int>{RuntimeFailure::Overflow});
    EXPECT_EQ(std::pair(log.moves, log.displayChanges), std::pair(1, 1));
}

TEST(MemoryEngine, LoadURLKeepsTheAddressAndReadsLocalFiles) {
    MemoryClipboard clipboard;
    MemoryEngine engine(clipboard);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("local.html"));
    writeBytes(path, "<html><body><p>local</p></body></html>");

    const QString local = QUrl::fromLocalFile(path).toString();
    engine.loadURL(local);
    EXPECT_EQ(engine.loadedURL(), local);
    EXPECT_EQ(engine.bodyContent().toStdString(), "<p>local</p>");

    engine.loadURL(QStringLiteral("https://example.com/"));
    EXPECT_EQ(engine.loadedURL().toStdString(), "https://example.com/");
    EXPECT_EQ(engine.documentHTML(), pageWithMarker(QString()));
}

TEST(MemoryEngine, ADropFromTheStripAppendsACopyOfItsBodyThatUndoTakesBack) {
    MemoryClipboard clipboard;
    MemoryEngine strip(clipboard), work(clipboard);
    const QString form = R"(<div id="MorvaneForm"></div>)";
    const QString field = R"(<input type="text" name="a">)";
    work.setDocumentHTML("<HTML><HEAD></HEAD><BODY>" + form + "</BODY></HTML>");
    EXPECT_THROW(work.dropFromStrip(), RuntimeFailure) << "no strip";
    work.acceptDropsFrom(strip);
    EXPECT_THROW(work.dropFromStrip(), RuntimeFailure) << "an empty strip";
    strip.setDocumentHTML(field);
    work.dropFromStrip();
    EXPECT_EQ(work.bodyContent(), form + field);
    EXPECT_EQ(strip.bodyContent(), field);
    work.execCommand(DECMD_UNDO);
    EXPECT_EQ(work.bodyContent(), form);
}

} // namespace
} // namespace zt::test
