#include "enginekit.h"

#include "platform/engine/memoryengine.h"
#include "platform/engine/pendinganswer.h"
#include "platform/engine/webengine.h"
#include "platform/guard.h"

#include <QFile>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <gtest/gtest.h>

#include <chrono>

namespace zt::test {

namespace {

class MemoryPair : public EnginePair {
public:
    PageEngine& first() override { return m_first; }
    PageEngine& second() override { return m_second; }
    bool selectText(PageEngine& engine, const QString& text) override {
        return static_cast<MemoryEngine&>(engine).selectText(text);
    }

private:
    MemoryEngine m_first{clipboard};
    MemoryEngine m_second{clipboard};
};

class WebPair : public EnginePair {
public:
    PageEngine& first() override { return m_first; }
    PageEngine& second() override { return m_second; }
    bool selectText(PageEngine& engine, const QString& text) override {
        return static_cast<WebPageEngine&>(engine).selectText(text);
    }

private:
    WebPageEngine m_first{clipboard};
    WebPageEngine m_second{clipboard};
};

std::unique_ptr<MemoryPair> g_memory;
std::unique_ptr<WebPair> g_web;

} // namespace

std::string kindName(EngineKind kind) {
    return kind == EngineKind::Memory ? "Memory" : "Web";
}

EnginePair& EngineKit::pair(EngineKind kind) {
    if (kind == EngineKind::Memory) {
        if (!g_memory)
            g_memory = std::make_unique<MemoryPair>();
        return *g_memory;
    }
    if (!g_web)
        g_web = std::make_unique<WebPair>();
    return *g_web;
}

WebPageEngine& EngineKit::web() {
    return static_cast<WebPageEngine&>(pair(EngineKind::Web).first());
}

void EngineKit::release() {
    g_memory.reset();
    g_web.reset();
}

QVariant evaluate(WebPageEngine& engine, const QString& script) {
    auto* view = static_cast<QWebEngineView*>(engine.widget());
    PendingAnswer answer;
    view->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                [answer](const QVariant& value) { answer.finish(value); });
    return answer.wait(std::chrono::seconds(30));
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

} // namespace zt::test
