// Which files of the disk a page may show.

#include "platform/engine/pagefolder.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace zt::test {
namespace {

TEST(PageFolder, RootIsTwoFoldersUpButNeverTheHomeFolderOrAbove) {
    const QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    QTemporaryDir top;
    const QString base = QFileInfo(top.path()).canonicalFilePath();
    ASSERT_TRUE(QDir().mkpath(base + "/a/b/c"));
    const struct {
        QString folder;
        QString root;
    } cases[] = {
        {base + "/a/b/c", base + "/a"},
        {base + "/a", QFileInfo(base).path()},
        {QStringLiteral("/usr"), QStringLiteral("/usr")},
        {QStringLiteral("/"), QString()},
        {QString(), QString()},
        {base + "/missing", QString()},
        {home, home},
    };
    for (const auto& c : cases)
        EXPECT_EQ(pagefolder::rootFor(c.folder), c.root) << c.folder.toStdString();
}

TEST(PageFolder, ShowsOnlyReadableRegularFilesInsideTheTree) {
    QTemporaryDir top;
    const QString root = QFileInfo(top.path()).canonicalFilePath() + "/site";
    ASSERT_TRUE(QDir().mkpath(root + "/docs") && QDir().mkpath(root + "/.git"));
    for (const char* name : {"/docs/a.png", "/.git/config", "/../outside.txt"}) {
        QFile file(root + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name;
    }
    ASSERT_TRUE(QFile::link(root + "/../outside.txt", root + "/docs/out.txt"));
    ASSERT_TRUE(QFile::link(root + "/docs/a.png", root + "/docs/in.png"));
    ASSERT_EQ(mkfifo(qPrintable(root + "/docs/pipe"), 0600), 0);
    QLocalServer socket;
    ASSERT_TRUE(socket.listen(root + "/docs/socket"));

    const struct {
        QString path;
        bool shown;
    } cases[] = {
        {root + "/docs/a.png", true},
        {root + "/docs/../docs/./a.png", true},
        {root + "/docs/in.png", true},
        {root + "/docs/out.txt", false},
        {root + "/../outside.txt", false},
        {root + "/.git/config", false},
        {root + "/docs", false},
        {root + "/docs/pipe", false},
        {root + "/docs/socket", false},
        {root + "/docs/missing.png", false},
        {QStringLiteral("/dev/zero"), false},
    };
    for (const auto& c : cases) {
        const QString shown = pagefolder::showableFile(root, c.path);
        EXPECT_EQ(!shown.isEmpty(), c.shown) << c.path.toStdString();
    }
    EXPECT_EQ(pagefolder::showableFile(root, root + "/docs/in.png"), root + "/docs/a.png");
    EXPECT_TRUE(pagefolder::showableFile(QString(), root + "/docs/a.png").isEmpty());
    EXPECT_TRUE(
        pagefolder::showableFile(QStringLiteral("/dev"), QStringLiteral("/dev/zero")).isEmpty());
}

} // namespace
} // namespace zt::test
