#include "views.h"

#include "platform/guard.h"
#include "safety/finalsave.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// What a bad file does to an Open: refused with a box (the document untouched),
// opened, or the command's own failure path: the source view's silent end with the
// text it cleared first, the visual view's run-time failure.
enum Outcome { Refused, Opened, FailurePath };

struct BadFile {
    const char* what;
    std::function<QString(Views&)> make;
    Outcome outcome;
    int visualFailure;
    const char* message;
};

const QString kKept = "<HTML><BODY><P>kept</P></BODY></HTML>";

// A saved document, kept in the crash folder on the way to a fatal end.
void keepADocument(Views& v, const QString& path) {
    Guard::setBeforeEnding([&v] { finalsave::writeOpenDocument(*v.program.forms); });
    v.load(path, kKept);
    v.zelvo.ui.star.setText("");
    v.zelvo.titleupdate();
    v.tessara.titleupdate();
}

QStringList crashFiles(Views& v) {
    return QDir(v.program.folder.path("crash")).entryList({"*.crw"}, QDir::Files);
}

} // namespace

TEST(BadFiles, EachOpenEndsInARefusalAnOpenOrTheCommandsFailurePath) {
    const BadFile cases[] = {
        {"binary",
         [](Views& v) {
             return v.file("pic.png", QString::fromLatin1("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
         },
         Refused, 0, "pic.png is not a text file, so it was not opened."},
        {"too large",
         [](Views& v) {
             const QString path = v.file("big.html", "");
             QFile(path).resize(17 * 1024 * 1024);
             return path;
         },
         Refused, 0,
         "big.html is 17 MB, more than the 16 MB a page may have, so it was not opened."},
        {"empty", [](Views& v) { return v.file("empty.html", ""); }, Opened, 0, ""},
        {"vanished", [](Views& v) { return v.program.scratch("gone.html"); }, FailurePath,
         RuntimeFailure::FileNotFound, ""},
        {"folder",
         [](Views& v) {
             QDir().mkpath(v.program.scratch("folder.html"));
             return v.program.scratch("folder.html");
         },
         FailurePath, 75, ""},
        // Tests run as root, who reads a file of mode 000; this file refuses even root.
        {"unreadable", [](Views&) { return QString("/proc/self/mem"); }, FailurePath, 75, ""},
    };
    for (const BadFile& c : cases)
        for (const bool visual : {false, true}) {
            const std::string label = std::string(c.what) + (visual ? ", visual" : ", source");
            Views v;
            const QString old = v.file("old.html", kKept);
            keepADocument(v, old);
            const QString captions = v.zelvo.caption() + v.tessara.caption();
            const QString path = c.make(v);
            v.program.pickers.files = {path};
            v.run([&] { visual ? v.tessara.mnuOpen() : v.zelvo.mnuOpen(); });

            EXPECT_EQ(v.asked(), c.outcome == Refused ? QStringList{c.message} : QStringList{})
                << label;
            const bool visualFailure = visual && c.outcome == FailurePath;
            EXPECT_EQ(failure(v.program), visualFailure ? c.visualFailure : 0) << label;
            EXPECT_EQ(crashFiles(v).size(), visualFailure ? 1u : 0u) << label << ": kept first";
            if (c.outcome == Opened) {
                EXPECT_EQ(v.tag(), path) << label;
                EXPECT_TRUE(visual || v.area().text().isEmpty()) << label;
                continue;
            }
            EXPECT_EQ(v.tag(), old) << label;
            // The source view's Open clears the text before it reads the file.
            const bool cleared = !visual && c.outcome == FailurePath;
            EXPECT_EQ(v.area().text(), cleared ? "" : kKept) << label;
            if (!cleared) {
                EXPECT_EQ(v.star() + v.zelvo.caption() + v.tessara.caption(), captions) << label;
            }
        }
}

TEST(BadFiles, ASaveThatCannotWriteKeepsTheMarkOrEndsByTheRunTimeFailure) {
    // A folder where the file was stands for a read-only file, since root writes
    // those; /dev/full is a disk with no room left.
    for (const QString& target : {QString("folder"), QString("/dev/full")})
        for (const bool visual : {false, true}) {
            const std::string label = target.toStdString() + (visual ? ", visual" : ", source");
            Views v;
            QString path = target;
            if (target == "folder") {
                path = v.program.scratch("page.html");
                QDir().mkpath(path);
            }
            keepADocument(v, path);
            v.area().setText(kKept + "<P>typed</P>");
            const QString caption = (visual ? static_cast<Form&>(v.tessara) : v.zelvo).caption();
            v.run([&] { visual ? v.tessara.mnuSave() : v.zelvo.mnuSave(); });

            EXPECT_EQ(v.star() + v.tag(), "*" + path) << label;
            EXPECT_TRUE(v.asked().isEmpty()) << label;
            EXPECT_EQ(failure(v.program), visual ? 75 : 0) << label;
            EXPECT_EQ(crashFiles(v).size(), visual ? 1u : 0u) << label;
            if (!visual) {
                EXPECT_EQ(v.area().text() + v.zelvo.caption(), kKept + "<P>typed</P>" + caption);
            }
        }
}
