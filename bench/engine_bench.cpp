// Setting and reading back large pages on the real page engine, its view hidden as
// in the tests.

#include "benchapp.h"

#include "platform/desktop.h"
#include "platform/engine/webengine.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

class BenchClipboard : public zt::Clipboard {
public:
    QString text() const override { return m_text; }
    void setText(const QString& text) override { m_text = text; }
    QString html() const override { return m_html; }
    void setHtml(const QString& html, const QString& plainText) override {
        m_html = html;
        m_text = plainText;
    }
    void clear() override {
        m_text.clear();
        m_html.clear();
    }

private:
    QString m_text;
    QString m_html;
};

QString pageOfSize(qsizetype bytes) {
    const QString paragraph =
        QStringLiteral("<p>Line %1 of a long page, <b>bold</b> and&nbsp;more.</p>\r\n");
    QString body;
    for (int line = 0; body.size() < bytes; ++line)
        body += paragraph.arg(line);
    return QStringLiteral("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>") + body +
           QStringLiteral("</BODY>\r\n</HTML>\r\n");
}

zt::WebPageEngine& engine() {
    static BenchClipboard clipboard;
    static std::unique_ptr<zt::WebPageEngine> instance;
    if (!instance) {
        instance = std::make_unique<zt::WebPageEngine>(clipboard);
        atBenchEnd([] { instance.reset(); });
        // The first page brings the engine's process up; that is not what is timed.
        instance->newDocument();
    }
    return *instance;
}

void setPage(benchmark::State& state) {
    const QString page = pageOfSize(state.range(0) * 1024 * 1024);
    for (auto _ : state)
        engine().setDocumentHTML(page);
    state.SetBytesProcessed(state.iterations() * page.size());
}

void readPage(benchmark::State& state) {
    const QString page = pageOfSize(state.range(0) * 1024 * 1024);
    engine().setDocumentHTML(page);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine().documentHTML());
    state.SetBytesProcessed(state.iterations() * page.size());
}

void setAndReadPage(benchmark::State& state) {
    const QString page = pageOfSize(state.range(0) * 1024 * 1024);
    for (auto _ : state) {
        engine().setDocumentHTML(page);
        benchmark::DoNotOptimize(engine().documentHTML());
    }
    state.SetBytesProcessed(state.iterations() * page.size());
}

} // namespace

// Sizes in MB. The engine works in another process, so the time that counts is the
// wall clock's.
BENCHMARK(setPage)->Arg(1)->Arg(10)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(readPage)->Arg(1)->Arg(10)->Iterations(3)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(setAndReadPage)
    ->Arg(1)
    ->Arg(10)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
