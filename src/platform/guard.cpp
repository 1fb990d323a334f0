#include "guard.h"

#include "qtservices.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace zt {

namespace {

int g_depth = 0;
quint64 g_event = 0;

void defaultEnding(const RuntimeFailure& failure) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        showMessageBox(Guard::boxText(failure), vbCritical, QCoreApplication::applicationName());
    } else {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    std::fflush(nullptr);
    std::_Exit(1);
}

void defaultProcessEnd() {
    std::fflush(nullptr);
    std::_Exit(0);
}

Guard::Ending g_ending = defaultEnding;
Guard::ProcessEnd g_processEnd = defaultProcessEnd;
std::function<void()> g_beforeEnding;

void endByFailure(const RuntimeFailure& failure) {
    // A save that waits on the engine lets events through; one of them may fail too.
    static bool saving = false;
    if (g_beforeEnding && !saving) {
        saving = true;
        try {
            g_beforeEnding();
        } catch (...) {
        }
        saving = false;
    }
    g_ending(failure);
}

struct DepthScope {
    DepthScope() {
        if (g_depth++ == 0)
            ++g_event;
    }
    ~DepthScope() { --g_depth; }
};

} // namespace

bool Guard::run(const std::function<void()>& body) {
    DepthScope scope;
    try {
        body();
        return true;
    } catch (const RuntimeFailure& failure) {
        endByFailure(failure);
    } catch (const ProcessEnded&) {
    } catch (const std::exception& e) {
        // Anything else is a fault of the program itself; the user sees it the way
        // the run time reports an internal error.
        endByFailure(RuntimeFailure(51, QStringLiteral("Internal error (%1)").arg(e.what())));
    }
    return false;
}

void Guard::setEnding(Ending ending) {
    g_ending = ending ? std::move(ending) : defaultEnding;
}

void Guard::setBeforeEnding(std::function<void()> save) {
    g_beforeEnding = std::move(save);
}

void Guard::setProcessEnd(ProcessEnd end) {
    g_processEnd = end ? std::move(end) : defaultProcessEnd;
}

void Guard::restoreDefaults() {
    g_ending = defaultEnding;
    g_processEnd = defaultProcessEnd;
    g_beforeEnding = nullptr;
}

int Guard::depth() {
    return g_depth;
}

quint64 Guard::currentEvent() {
    return g_depth > 0 ? g_event : 0;
}

void Guard::endProcess() {
    g_processEnd();
    throw ProcessEnded{};
}

QString Guard::boxText(const RuntimeFailure& failure) {
    return QStringLiteral("Run-time error '%1':\n\n%2")
        .arg(failure.number())
        .arg(failure.description());
}

} // namespace zt
