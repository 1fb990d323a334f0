#include "enginekit.h"

#include "platform/engine/memoryengine.h"
#include "platform/engine/pendinganswer.h"
#include "platform/engine/webengine.h"
#include "platform/guard.h"
#include "support/testprogram.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <gtest/gtest.h>

namespace zt::test {

namespace {

template <class Engine> class PairOf : public EnginePair {
public:
    PageEngine& first() override { return m_first; }
    PageEngine& second() override { return m_second; }
    bool selectText(PageEngine& engine, const QString& text) override {
        return static_cast<Engine&>(engine).selectText(text);
    }

private:
    Engine m_first{clipboard};
    Engine m_second{clipboard};
};

std::unique_ptr<EnginePair> g_pairs[2];

} // namespace

EnginePair& EngineKit::pair(EngineKind kind) {
    auto& pair = g_pairs[int(kind)];
    if (!pair && kind == EngineKind::Memory)
        pair = std::make_unique<PairOf<MemoryEngine>>();
    else if (!pair)
        pair = std::make_unique<PairOf<WebPageEngine>>();
    return *pair;
}

WebPageEngine& EngineKit::web() {
    return static_cast<WebPageEngine&>(pair(EngineKind::Web).first());
}

void EngineKit::release() {
    for (auto& pair : g_pairs)
        pair.reset();
}

QVariant evaluate(WebPageEngine& engine, const QString& script) {
    auto* view = static_cast<QWebEngineView*>(engine.widget());
    PendingAnswer answer;
    view->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                [answer](const QVariant& value) { answer.finish(value); });
    return answer.wait(std::chrono::seconds(30));
}

EventLog::EventLog(PageEngine& engine) : engine(engine) {
    Guard::setEnding(
        [this](const RuntimeFailure& failure) { failures.push_back(failure.number()); });
    engine.onKeyPress = [this](QChar key) {
        keys += key;
        if (key == u'!')
            throw RuntimeFailure::overflow();
    };
    engine.onMouseMove = [this] { ++moves; };
    engine.onDisplayChanged = [this] { ++displayChanges; };
}

EventLog::~EventLog() {
    engine.onKeyPress = nullptr;
    engine.onMouseMove = nullptr;
    engine.onDisplayChanged = nullptr;
    failAtGuard();
}

bool eventually(const std::function<bool()>& check, std::chrono::milliseconds time) {
    const QDeadlineTimer deadline(time);
    while (!check() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return check();
}

void failAtGuard() {
    Guard::setEnding([](const RuntimeFailure& failure) {
        ADD_FAILURE() << "failure reached the guard: " << failure.what();
    });
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

QString pageWithMarker(const QString& body) {
    return QStringLiteral("<HTML>\r\n<HEAD>\r\n") + kEngineGeneratorMarker +
           QStringLiteral("\r\n</HEAD>\r\n<BODY>") + body +
           QStringLiteral("</BODY>\r\n</HTML>\r\n");
}

void setBody(PageEngine& engine, const char* body) {
    engine.setDocumentHTML(
        QStringLiteral("<HTML><HEAD></HEAD><BODY>%1</BODY></HTML>").arg(QLatin1String(body)));
}

std::string bodyOf(PageEngine& engine) {
    const QString page = engine.documentHTML();
    const qsizetype start = page.indexOf(QLatin1String("<BODY>")) + 6;
    return page.mid(start, page.lastIndexOf(QLatin1String("</BODY>")) - start)
        .trimmed()
        .toStdString();
}

std::unique_ptr<TestProgram> realProgram() {
    auto program = std::make_unique<TestProgram>();
    program->services.makeEngine = [clipboard = &program->clipboard](QWidget* parent) {
        return std::make_unique<WebPageEngine>(*clipboard, parent);
    };
    return program;
}

QWidget* inputOf(PageEngine& engine) {
    return engine.widget()->focusProxy();
}

void dragTo(QWidget* widget, QPoint from, QPoint to) {
    QTest::mouseMove(widget, from);
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, (from + to) / 2);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
}

} // namespace zt::test
