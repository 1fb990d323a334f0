// The cost of the source view's text commands: a tag pair put round a selection and
// taken off again, and one keystroke with the source view's whole Change chain.

#include "benchapp.h"

#include "platform/textcontrol.h"
#include "shell/views.h"
#include "source/wrapcommands.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

QString documentOfSize(qsizetype characters) {
    const QString line =
        QStringLiteral("<p>Line %1 of a long page, <b>bold</b> and&nbsp;more.</p>\r\n");
    QString text;
    text.reserve(characters + line.size() + 8);
    for (int n = 0; text.size() < characters; ++n)
        text += line.arg(n);
    text.truncate(characters);
    return text;
}

// One source view for all runs, ended while the application still stands.
zt::test::Views& views() {
    static std::unique_ptr<zt::test::Views> instance;
    if (!instance) {
        instance = std::make_unique<zt::test::Views>();
        atBenchEnd([] { instance.reset(); });
    }
    return *instance;
}

// Bold on a word in the middle of a 32 000-character text, then Bold again to take the
// pair off: the command alone, on a bare text box.
void boldWrapAndUnwrap(benchmark::State& state) {
    zt::TextControl area;
    area.setText(documentOfSize(32000));
    for (auto _ : state) {
        area.setSelStart(16000);
        area.setSelLength(4);
        zt::runWrap(area, zt::Wrap::Bold);
        zt::runWrap(area, zt::Wrap::Bold);
    }
    if (area.text().size() != 32000)
        state.SkipWithError("the text did not come back");
}

// The same through the menu handler of the source view, with its editor and its Change
// chain running on each of the three edits.
void boldWrapAndUnwrapInTheSourceView(benchmark::State& state) {
    zt::test::Views& v = views();
    v.area().setText(documentOfSize(32000));
    for (auto _ : state) {
        v.area().setSelStart(16000);
        v.area().setSelLength(4);
        v.zelvo.mnubold();
        v.zelvo.mnubold();
    }
}

// One typed character in the middle of a 1 MB text: one SelText assignment and the
// source view's Change chain (dirty mark, caption, line count, status text) with the
// editor following the edit.
void keystrokeOn1MB(benchmark::State& state) {
    zt::test::Views& v = views();
    v.area().setText(documentOfSize(1024 * 1024));
    const int middle = 512 * 1024;
    for (auto _ : state) {
        v.area().setSelStart(middle);
        v.area().setSelText(QStringLiteral("x"));
    }
}

} // namespace

BENCHMARK(boldWrapAndUnwrap)->Unit(benchmark::kMicrosecond);
BENCHMARK(boldWrapAndUnwrapInTheSourceView)->Unit(benchmark::kMicrosecond);
BENCHMARK(keystrokeOn1MB)->Unit(benchmark::kMicrosecond);
