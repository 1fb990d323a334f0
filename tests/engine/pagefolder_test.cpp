// The edges of a page's folder tree that a page cannot show us by itself; the
// hostile page of the confinement test tries the rest.

#include "platform/engine/pagefolder.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

TEST(PageFolder, TreeStopsBelowHomeAndLeavesOutHiddenNamesAndSockets) {
    const QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    QTemporaryDir top;
    const QString base = QFileInfo(top.path()).canonicalFilePath();
    ASSERT_TRUE(QDir().mkpath(base + "/a/b/c") && QDir().mkpath(base + "/a/.git"));
    const struct {
        QString folder;
        QString root;
    } roots[] = {{base + "/a/b/c", base + "/a"}, {home, home}, {"/", ""}, {"", ""}};
    for (const auto& c : roots)
        EXPECT_EQ(pagefolder::rootFor(c.folder), c.root) << c.folder.toStdString();

    const QString root = base + "/a";
    for (const char* name : {"/b/a.png", "/.git/config"})
        ASSERT_TRUE(QFile(root + name).open(QIODevice::WriteOnly)) << name;
    ASSERT_TRUE(QFile::link(root + "/b/a.png", root + "/b/c/link.png"));
    QLocalServer socket;
    ASSERT_TRUE(socket.listen(root + "/b/socket"));
    const struct {
        const char* name;
        const char* shown;
    } files[] = {{"/b/c/link.png", "/b/a.png"}, {"/.git/config", ""}, {"/b/socket", ""}};
    for (const auto& c : files) {
        const QString shown = pagefolder::showableFile(root, root + c.name);
        EXPECT_EQ(shown, *c.shown ? root + c.shown : QString()) << c.name;
    }
}

} // namespace
} // namespace zt::test
