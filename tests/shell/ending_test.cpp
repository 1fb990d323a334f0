// The real program, ended the ways a user's session ends it, keeps the open
// document in its crash folder. It runs on a display of its own (Xvfb), typed into
// with xdotool, since an offscreen program takes no input from outside.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace {

class RealProgram {
public:
    bool start() {
        // A hard link beside the build: the program's folder is where it is started
        // from, and the crash folder must be one of this test's own.
        const QString built = QCoreApplication::applicationDirPath() + "/zelvo-tessara";
        if (!dir.isValid() ||
            ::link(qPrintable(built), qPrintable(dir.filePath("zelvo-tessara"))) != 0)
            return false;
        QDir(dir.path()).mkdir("crash");
        display.start("Xvfb",
                      {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
        if (!display.waitForReadyRead(20000))
            return false;
        env.insert("DISPLAY", ":" + QString::fromLatin1(display.readAll()).trimmed());
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("XDG_CONFIG_HOME", dir.filePath("config"));
        program.setProcessEnvironment(env);
        program.start(dir.filePath("zelvo-tessara"), {});
        if (!program.waitForStarted() ||
            !xdotool({"search", "--sync", "--name", "Start Up Assistant"}))
            return false;
        // Then types into the page of the visual view, which marks the document. On a
        // busy machine the page may not take keys yet, so it types again until it does.
        for (int attempt = 0; attempt < 5; ++attempt) {
            xdotool({"search", "--name", "^Untitled\\(", "windowfocus", "--sync", "type", "--delay",
                     "50", "typed"});
            if (xdotool({"sleep", "2", "search", "--name", "\\(\\*\\)"}))
                return true;
        }
        return false;
    }

    bool xdotool(const QStringList& args) {
        QProcess tool;
        tool.setProcessEnvironment(env);
        tool.start("xdotool", args);
        return tool.waitForFinished(30000) && tool.exitCode() == 0;
    }

    ~RealProgram() {
        program.kill();
        program.waitForFinished();
        display.terminate();
        display.waitForFinished();
    }

    QTemporaryDir dir{QCoreApplication::applicationDirPath() + "/ending-XXXXXX"};
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    QProcess display;
    QProcess program;
};

} // namespace

TEST(RealProgramEnding, SignalsAndTheRunTimeFailureKeepTheDocumentInTheCrashFolder) {
    if (QStandardPaths::findExecutable("Xvfb").isEmpty() ||
        QStandardPaths::findExecutable("xdotool").isEmpty())
        GTEST_SKIP() << "needs Xvfb and xdotool";
    struct Way {
        const char* what;
        int signal;
    } ways[] = {{"SIGTERM", SIGTERM}, {"SIGHUP", SIGHUP}, {"Cancel in the visual Open", 0}};
    for (const Way& way : ways) {
        RealProgram p;
        ASSERT_TRUE(p.start()) << way.what;
        if (way.signal) {
            ::kill(pid_t(p.program.processId()), way.signal);
        } else {
            // Open, No to saving first (a Yes/No question takes no Escape), Escape
            // in the file dialog: the run time's box, answered with Enter, and the end.
            ASSERT_TRUE(p.xdotool({"key", "ctrl+o"}));
            ASSERT_TRUE(
                p.xdotool({"search", "--sync", "--onlyvisible", "--name", "^Assistant: Zelvo$"}));
            ASSERT_TRUE(p.xdotool({"sleep", "0.5", "key", "alt+n"}));
            // Escape only once the file dialog is up and holds the keys: a busy
            // machine may take seconds to show it.
            ASSERT_TRUE(p.xdotool({"search", "--sync", "--onlyvisible", "--name", "^Open$"}));
            ASSERT_TRUE(p.xdotool({"sleep", "0.5", "key", "Escape"}));
            ASSERT_TRUE(
                p.xdotool({"search", "--sync", "--onlyvisible", "--name", "^Zelvo Tessara$"}));
            ASSERT_TRUE(p.xdotool({"key", "Return"}));
        }
        ASSERT_TRUE(p.program.waitForFinished(30000)) << way.what;
        EXPECT_TRUE(way.signal ? p.program.exitStatus() == QProcess::CrashExit
                               : p.program.exitCode() == 1)
            << way.what;
        const QStringList files =
            QDir(p.dir.filePath("crash")).entryList({"Untitled *.crw"}, QDir::Files);
        ASSERT_EQ(files.size(), 1) << way.what;
        QFile file(p.dir.filePath("crash/" + files[0]));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll().contains("<BODY")) << way.what;
    }
}
