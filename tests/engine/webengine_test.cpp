// The real engine's settled properties: a page's scripts never run while it is
// edited, it loads nothing from the web, reads are synchronous and nest, and its
// events reach the program through the guard.

#include "enginekit.h"

#include "platform/engine/pendinganswer.h"
#include "platform/engine/webengine.h"
#include "platform/guard.h"
#include "support/failureof.h"

#include <QCoreApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

using namespace std::chrono_literals;

class WebEngine : public ::testing::Test {
protected:
    void SetUp() override {
        engine.setBrowseMode(false);
        EngineKit::pair(EngineKind::Web).clipboard.clear();
    }
    void TearDown() override { engine.setBrowseMode(false); }

    std::string js(const char* script) { return evaluate(engine, script).toString().toStdString(); }

    WebPageEngine& engine = EngineKit::web();
};

TEST_F(WebEngine, ScriptsOfThePageNeverRunWhileItIsEdited) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scripted.html"));
    const QByteArray page =
        "<html><head><title>Original</title>"
        "<script>document.title = 'ran';</script></head>"
        "<body onload=\"document.title = 'loaded'\">"
        "<script>document.body.appendChild(document.createElement('hr'));</script>"
        "<img src=\"missing.gif\" onerror=\"document.title = 'error'\"></body></html>";
    writeBytes(path, page);
    for (bool fromFile : {false, true}) {
        fromFile ? engine.loadDocument(path) : engine.setDocumentHTML(QString::fromUtf8(page));
        QCoreApplication::processEvents();
        EXPECT_EQ(js("document.title"), "Original") << fromFile;
        EXPECT_FALSE(engine.documentHTML().contains(QLatin1String("<hr>"))) << fromFile;
    }

    // Nor does a pasted fragment's.
    auto& clipboard = EngineKit::pair(EngineKind::Web).clipboard;
    clipboard.setHtml(QStringLiteral("<script>document.title = 'pasted';</script>"
                                     "<img src=\"x.gif\" onerror=\"document.title = 'pasted'\">"),
                      QString());
    engine.execCommand(DECMD_PASTE);
    QCoreApplication::processEvents();
    EXPECT_EQ(js("document.title"), "Original");
    EXPECT_EQ(js("document.designMode"), "on");
}

TEST_F(WebEngine, BrowseModeRunsThePageAndLeavingItShowsThePageAsBefore) {
    const QString page = QStringLiteral(
        "<HTML><HEAD></HEAD><BODY><p>x</p>"
        "<script>document.body.setAttribute('data-ran', 'yes');</script></BODY></HTML>");
    const QString ran = QStringLiteral(R"(data-ran="yes")");

    engine.setDocumentHTML(page);
    EXPECT_FALSE(engine.documentHTML().contains(ran));
    engine.setBrowseMode(true);
    EXPECT_TRUE(engine.documentHTML().contains(ran)) << "an edited page goes to browse mode";
    EXPECT_EQ(js("document.designMode"), "off");

    engine.setDocumentHTML(page);
    EXPECT_TRUE(engine.documentHTML().contains(ran)) << "a page set in browse mode";

    engine.setBrowseMode(false);
    const QString edited = engine.documentHTML();
    EXPECT_FALSE(edited.contains(ran));
    EXPECT_TRUE(edited.contains(QLatin1String("<p>x</p>")));
    EXPECT_EQ(js("document.designMode"), "on");
}

TEST_F(WebEngine, ImagesBesideTheDocumentLoadAndTheWebStaysOut) {
    QTcpServer web;
    ASSERT_TRUE(web.listen(QHostAddress::LocalHost));
    const QString remote = QStringLiteral("http://127.0.0.1:%1/remote.png").arg(web.serverPort());

    QTemporaryDir folder;
    ASSERT_TRUE(QImage(3, 2, QImage::Format_RGB32).save(folder.filePath("dot.png")));
    const QString path = folder.filePath(QStringLiteral("page.html"));
    writeBytes(path,
               QStringLiteral(R"(<html><body><img src="dot.png"><img src="%1"></body></html>)")
                   .arg(remote)
                   .toUtf8());

    const auto imageWidth = [&] {
        return evaluate(engine, "document.images[0].naturalWidth").toInt();
    };
    engine.loadDocument(path);
    EXPECT_TRUE(eventually([&] { return imageWidth() == 3; }));
    // A page set as text keeps the folder of the document for its links.
    engine.setDocumentHTML(engine.documentHTML());
    EXPECT_TRUE(eventually([&] { return imageWidth() == 3; }));
    EXPECT_FALSE(eventually([&] { return web.hasPendingConnections(); }, 500ms))
        << "an editing surface asked the web";

    engine.setBrowseMode(true);
    EXPECT_TRUE(eventually([&] { return web.hasPendingConnections(); }))
        << "browse mode may load from the web";
}

TEST_F(WebEngine, LoadURLShowsAPageAndRefusesOtherSchemes) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("shown.html"));
    writeBytes(path, "<html><body><p>Shown by address</p></body></html>");
    engine.loadURL(QUrl::fromLocalFile(path).toString());
    EXPECT_TRUE(engine.documentHTML().contains(QLatin1String("<p>Shown by address</p>")));
    EXPECT_EQ(js("document.designMode"), "on");

    for (const char* url :
         {"ftp://example.com/", "javascript:alert(1)", "zt-doc://page/etc/passwd"})
        EXPECT_THROW(engine.loadURL(QString::fromLatin1(url)), RuntimeFailure) << url;

    // The next page set as text is edited as usual.
    engine.setDocumentHTML(QStringLiteral("<p>back</p>"));
    EXPECT_TRUE(engine.documentHTML().contains(QLatin1String("<BODY><p>back</p>")));
}

TEST_F(WebEngine, CopyKeepsTheInlineElementsAroundTheSelection) {
    auto& kit = EngineKit::pair(EngineKind::Web);
    const QString page = QStringLiteral("<p>a <b>bold</b> c</p>");
    const struct {
        const char* select;
        const char* html;
        const char* body;
    } cases[] = {
        {"ol", "<b>ol</b>", "<p>a <b>bd</b> c</p>"},
        {"bold", "<b>bold</b>", "<p>a  c</p>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.select);
        engine.setDocumentHTML(page);
        ASSERT_TRUE(engine.selectText(QString::fromLatin1(c.select)));
        engine.execCommand(DECMD_CUT);
        EXPECT_EQ(kit.clipboard.html().toStdString(), c.html);
        EXPECT_EQ(kit.clipboard.text().toStdString(), c.select);
        EXPECT_EQ(engine.documentHTML().toStdString(),
                  pageWithMarker(QString::fromLatin1(c.body) + "\r\n").toStdString());
    }
}

TEST_F(WebEngine, WaitsNestAndHaveADeadline) {
    auto& other = static_cast<WebPageEngine&>(EngineKit::pair(EngineKind::Web).second());
    other.setDocumentHTML(QStringLiteral("<p>other</p>"));
    QString readInside;
    bool returned = false;
    // A timer that fires inside one call reads another engine.
    QTimer::singleShot(0, [&] {
        EXPECT_FALSE(returned);
        readInside = other.documentHTML();
    });
    engine.setDocumentHTML(QStringLiteral("<p>this</p>"));
    returned = true;
    EXPECT_TRUE(readInside.contains(QLatin1String("<p>other</p>")));
    EXPECT_TRUE(engine.documentHTML().contains(QLatin1String("<p>this</p>")));

    // A page set by an event while another is on its way wins, as the later one.
    returned = false;
    QTimer::singleShot(0, [&] {
        EXPECT_FALSE(returned);
        engine.setDocumentHTML(QStringLiteral("<p>later</p>"));
    });
    engine.newDocument();
    returned = true;
    EXPECT_EQ(engine.documentHTML().toStdString(),
              pageWithMarker("<p>later</p>\r\n").toStdString());

    PendingAnswer never;
    EXPECT_EQ(failureOf([&] { never.wait(50ms); }), 5) << "an unanswered wait returned";
    never.finish(1); // a late answer is dropped
    EXPECT_TRUE(never.finished());
}

// As the in-memory engine, a new control holds an empty page ready for typing, so
// that what the program writes into it before any document shows.
TEST_F(WebEngine, ANewControlHoldsAnEmptyEditablePage) {
    WebPageEngine fresh(EngineKit::pair(EngineKind::Web).clipboard);
    EXPECT_EQ(evaluate(fresh, "document.designMode").toString(), "on");
    EXPECT_TRUE(fresh.documentHTML().contains("<BODY></BODY>"));
}

TEST_F(WebEngine, EventsReachTheProgramThroughTheGuard) {
    EventLog log(engine);
    engine.setDocumentHTML(QStringLiteral("<p>events</p>"));
    EXPECT_TRUE(eventually([&] { return log.displayChanges > 0; }));

    QWidget* input = engine.widget()->focusProxy();
    ASSERT_NE(input, nullptr);
    const std::pair<int, const char*> typed[] = {{Qt::Key_A, "a"},
                                                 {Qt::Key_Left, ""},
                                                 {Qt::Key_Return, "\r"},
                                                 {Qt::Key_Shift, ""},
                                                 {Qt::Key_Exclam, "!"}};
    for (const auto& [key, text] : typed) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString::fromLatin1(text));
        QCoreApplication::sendEvent(input, &press);
    }
    EXPECT_EQ(log.keys.toStdString(), "a\r!");
    EXPECT_EQ(log.failures, std::vector<int>{RuntimeFailure::Overflow});

    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), QPointF(5, 5), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(input, &move);
    EXPECT_EQ(log.moves, 1);
}

} // namespace
} // namespace zt::test
