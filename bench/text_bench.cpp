// The cost of the source view's text commands: a tag pair put round a selection and
// taken off again, and one key typed into the source view of a large page.

#include "benchapp.h"

#include "platform/textcontrol.h"
#include "platform/texteditview.h"
#include "shell/views.h"
#include "source/wrapcommands.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

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

// A 6 MB page of short lines; with a long line, its last 145 000 characters are one
// line, as in pages whose script or markup was written without breaks.
constexpr qsizetype kPageSize = 6 * 1024 * 1024;
constexpr qsizetype kLongLine = 145000;

QString pageForTyping(bool longLine) {
    QString text = documentOfSize(kPageSize);
    if (longLine) {
        QString line = text.right(kLongLine);
        line.replace(QStringLiteral("\r\n"), QStringLiteral("  "));
        text.replace(text.size() - kLongLine, kLongLine, line);
    }
    return text;
}

// One key typed into the source view's editor, as the user types it: the key event,
// the editor's edit, the SelText assignment with the whole Change chain of area, and
// the repaint. Runs type "x" and take it back with Backspace in turn, so the page
// stays the same. Places: the top, the middle and the end of the page, or with the
// long line its start, middle and end.
// Types "x" and takes it back with Backspace in turn at the caret, so the page stays
// the same.
void typeAndTakeBack(benchmark::State& state, QWidget* editor, zt::TextControl& area) {
    const qsizetype size = area.text().size();
    QKeyEvent typeX(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QKeyEvent backspace(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
    bool typed = false;
    for (auto _ : state) {
        QCoreApplication::sendEvent(editor, typed ? &backspace : &typeX);
        QCoreApplication::processEvents();
        typed = !typed;
    }
    if (area.text().size() != size + (typed ? 1 : 0))
        state.SkipWithError("the keys did not reach the text");
}

void keystroke(benchmark::State& state) {
    const bool longLine = state.range(0) != 0;
    const int place = int(state.range(1));
    zt::test::Views& v = views();
    QWidget* editor = v.zelvo.ui.areaView;
    editor->window()->show();
    v.area().setText(pageForTyping(longLine));
    const qsizetype from = longLine ? kPageSize - kLongLine : 0;
    v.area().setSelStart(int(from + (kPageSize - from) * place / 2));
    QCoreApplication::processEvents();
    typeAndTakeBack(state, editor, v.area());
    static const char* const places[] = {"top", "middle", "end"};
    state.SetLabel(std::string(longLine ? "long line " : "lines ") + places[place]);
    editor->window()->hide();
}

// The same on a 1 MB page, with Auto Tag Recognition off and on, at the top, the
// middle and the end: what the recognition adds to a key.
void keystrokeWithRecognition(benchmark::State& state) {
    const bool recognition = state.range(0) != 0;
    const int place = int(state.range(1));
    constexpr qsizetype kSize = 1024 * 1024;
    zt::test::Views& v = views();
    QWidget* editor = v.zelvo.ui.areaView;
    editor->window()->show();
    v.zelvo.ui.mnuAutoRecog->setCheckable(true);
    v.zelvo.ui.mnuAutoRecog->setChecked(recognition);
    v.area().setText(documentOfSize(kSize));
    v.area().setSelStart(int(kSize * place / 2));
    QCoreApplication::processEvents();
    typeAndTakeBack(state, editor, v.area());
    static const char* const places[] = {"top", "middle", "end"};
    state.SetLabel(std::string(recognition ? "1 MB, recognition on, " : "1 MB, off, ") +
                   places[place]);
    v.zelvo.ui.mnuAutoRecog->setChecked(false);
    editor->window()->hide();
}

} // namespace

BENCHMARK(boldWrapAndUnwrap)->Unit(benchmark::kMicrosecond);
BENCHMARK(boldWrapAndUnwrapInTheSourceView)->Unit(benchmark::kMicrosecond);
BENCHMARK(keystroke)
    ->ArgsProduct({{0, 1}, {0, 1, 2}})
    ->ArgNames({"longLine", "place"})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(keystrokeWithRecognition)
    ->ArgsProduct({{0, 1}, {0, 1, 2}})
    ->ArgNames({"recognition", "place"})
    ->Unit(benchmark::kMicrosecond);
