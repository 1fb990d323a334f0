#include "platform/settingsstore.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace zt;

namespace {

const QString kApp = QStringLiteral("Zelvo Tessara 3.0");
const char* kChildDir = "ZT_SETTINGS_CHILD_DIR";

void useFolder(const QString& dir) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir);
}

} // namespace

TEST(SettingsStore, ThreePartAddressesKeepApartAndDefaultsApply) {
    QTemporaryDir dir;
    useFolder(dir.path());
    QtSettingsStore store;
    EXPECT_EQ(store.getSetting(kApp, "MRUs", "1"), "");
    EXPECT_EQ(store.getSetting(kApp, "HRule", "Alignment", "Center"), "Center");

    store.saveSetting(kApp, "MRUs", "1", "/tmp/a.html");
    store.saveSetting(kApp, "Table", "1", "other section");
    store.saveSetting("Zelvo Tessara", "Options", "Show Tips at Startup", "0");
    store.saveSetting(kApp, "Odd/Section", "Key/With Slash", "kept");
    store.saveSetting(kApp, "MRUs", "1", "/tmp/b.html");

    EXPECT_EQ(store.getSetting(kApp, "MRUs", "1"), "/tmp/b.html");
    EXPECT_EQ(store.getSetting(kApp, "Table", "1"), "other section");
    EXPECT_EQ(store.getSetting(kApp, "Options", "Show Tips at Startup", "1"), "1")
        << "another application name is another store";
    EXPECT_EQ(store.getSetting("Zelvo Tessara", "Options", "Show Tips at Startup", "1"), "0");
    EXPECT_EQ(store.getSetting(kApp, "Odd", "Section/Key"), "");
    EXPECT_EQ(store.getSetting(kApp, "Odd/Section", "Key/With Slash"), "kept");
    // An empty value is a value, not an absent key.
    store.saveSetting(kApp, "Table", "Colour", "");
    EXPECT_EQ(store.getSetting(kApp, "Table", "Colour", "red"), "");
}

// Run only as the child of the test below: writes and ends the process at once,
// as the program's Exit does.
TEST(SettingsStoreChild, WritesThenEndsAtOnce) {
    if (qEnvironmentVariableIsEmpty(kChildDir))
        GTEST_SKIP() << "runs only as a child process";
    useFolder(qEnvironmentVariable(kChildDir));
    QtSettingsStore store;
    store.saveSetting(kApp, "Crash", "crash", "0");
    std::_Exit(0);
}

TEST(SettingsStore, SurvivesAProcessThatEndsAtOnce) {
    QTemporaryDir dir;
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(kChildDir, dir.path());
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=SettingsStoreChild.WritesThenEndsAtOnce")});
    ASSERT_TRUE(child.waitForFinished(30000));
    ASSERT_EQ(child.exitCode(), 0);

    useFolder(dir.path());
    QtSettingsStore store;
    EXPECT_EQ(store.getSetting(kApp, "Crash", "crash", "x"), "0");
}
