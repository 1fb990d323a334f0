// A page in any of our views may show the files of its own folder tree and read
// none: a hostile page tries every way of reading a file it can, and whatever it
// got is in its own text, where the test looks for the secrets.

#include "enginekit.h"

#include "platform/engine/pagefolder.h"
#include "platform/engine/webengine.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace zt::test {
namespace {

QByteArray hostilePage(const QJsonObject& given) {
    QFile file(QStringLiteral(ZT_TEST_DATA "/hostile.html"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().replace("/*GIVEN*/", QJsonDocument(given).toJson(QJsonDocument::Compact));
}

void writeImage(const QString& path, QSize size, QColor colour) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(path)) << path.toStdString();
}

// Every file under folder, for what the engine left on disk.
QStringList filesUnder(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    return files;
}

TEST(Confinement, APageShowsItsFolderTreeAndReadsNoFile) {
    // top/secret.txt        outside the tree
    // top/x/site/_static/   style sheet and image a level up, linked by the page
    // top/x/site/docs/      the page, its own style sheet, image and a text file
    QTemporaryDir top;
    const QDir docs(top.filePath(QStringLiteral("x/site/docs")));
    ASSERT_TRUE(QDir().mkpath(docs.path()) && QDir().mkpath(top.filePath("x/site/_static")) &&
                docs.mkdir(QStringLiteral("sub")));
    writeBytes(top.filePath("secret.txt"), "OUTSIDE-SECRET-7731");
    writeImage(top.filePath("secret.png"), {2, 2}, QColor(201, 7, 99));
    writeBytes(docs.filePath("inner.txt"), "INSIDE-SECRET-4420");
    writeBytes(docs.filePath("local.css"), "h1 { color: rgb(4, 5, 6); } /* INSIDE-SECRET-CSS */");
    writeBytes(docs.filePath("data.json"), R"({"s": "INSIDE-SECRET-JSON"})");
    writeBytes(docs.filePath("module.js"), "export default 'INSIDE-SECRET-MODULE';");
    writeImage(docs.filePath("dot.png"), {3, 2}, QColor(11, 22, 33));
    writeBytes(top.filePath("x/site/_static/style.css"), "p { color: rgb(1, 2, 3); }");
    writeImage(top.filePath("x/site/_static/up.png"), {5, 4}, QColor(44, 55, 66));
    ASSERT_TRUE(QFile::link(top.filePath("secret.txt"), docs.filePath("link.txt")));
    ASSERT_TRUE(QFile::link(top.path(), docs.filePath("linkdir")));
    ASSERT_EQ(mkfifo(qPrintable(docs.filePath("pipe")), 0600), 0);
    const QString path = docs.filePath(QStringLiteral("page.html"));
    writeBytes(path, hostilePage({{"secret", top.filePath("secret.txt")},
                                  {"secretImage", top.filePath("secret.png")},
                                  {"inner", docs.filePath("inner.txt")},
                                  {"folder", docs.path()},
                                  {"name", "page.html"}}));

    // Another preview shows unsaved work that the page must not see either.
    auto& other = EngineKit::pair(EngineKind::Web).second();
    other.setDocumentHTML(QStringLiteral("<p>UNSAVED-SECRET-5150</p>"));
    other.setBrowseMode(true);

    WebPageEngine& engine = EngineKit::web();
    const auto value = [&](const char* script) { return evaluate(engine, script).toString(); };
    const auto shown = [&] {
        return value("[getComputedStyle(document.querySelector('h1')).color,"
                     " getComputedStyle(document.querySelector('p')).color,"
                     " document.getElementById('near').naturalWidth,"
                     " document.getElementById('up').naturalWidth].join(' ')");
    };
    const QString display = QStringLiteral("rgb(4, 5, 6) rgb(1, 2, 3) 3 5");
    const auto eventually = [](const std::function<bool()>& check) {
        return test::eventually(check, std::chrono::seconds(20));
    };

    engine.loadDocument(path);
    EXPECT_TRUE(eventually([&] { return shown() == display; }))
        << "editing: " << shown().toStdString();

    engine.setBrowseMode(true);
    const auto report = [&] { return value("document.getElementById('out').textContent"); };
    EXPECT_TRUE(eventually([&] { return report().contains(QLatin1String("done")); }));
    const QString got = report();
    for (const char* secret :
         {"OUTSIDE-SECRET", "INSIDE-SECRET", "UNSAVED-SECRET", "pixel", "canvas", "sheet"})
        EXPECT_FALSE(got.contains(QLatin1String(secret))) << secret << " in:\n"
                                                          << got.toStdString();
    EXPECT_EQ(got.count(QLatin1String("bridge undefined undefined undefined")), 2)
        << "the page and its frame: " << got.toStdString();
    EXPECT_EQ(shown(), display) << "browse mode";

    engine.setBrowseMode(false);
    other.setBrowseMode(false);
    EXPECT_TRUE(filesUnder(qEnvironmentVariable("XDG_DATA_HOME")).isEmpty() &&
                filesUnder(qEnvironmentVariable("XDG_CACHE_HOME")).isEmpty())
        << "the engine kept something on disk";
}

// The edges of a page's folder tree that a page cannot show us by itself.
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
