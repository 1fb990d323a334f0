#include "enginekit.h"

#include "platform/engine/webengine.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Test machines run as root, where the browser's sandbox refuses to start, and
    // have no graphics acceleration.
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu --disable-logging");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // A home of its own for the run, where a test can see that the engine kept
    // nothing on disk.
    QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CACHE_HOME", home.filePath(QStringLiteral("cache")).toUtf8());
    zt::WebPageEngine::registerSchemes();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    zt::test::failAtGuard();
    const int result = RUN_ALL_TESTS();
    // The engines let their pages go while the application still stands.
    zt::test::EngineKit::release();
    return result;
}
