#include "benchapp.h"

#include "platform/engine/webengine.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

std::vector<std::function<void()>>& endWork() {
    static std::vector<std::function<void()>> work;
    return work;
}

} // namespace

void atBenchEnd(std::function<void()> work) {
    endWork().push_back(std::move(work));
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu --disable-logging");
    zt::WebPageEngine::registerSchemes();
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    for (auto& work : endWork())
        work();
    return 0;
}
