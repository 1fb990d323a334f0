// The real program, ended the ways a user's session ends it, keeps the open
// document in its crash folder. It runs on a display of its own (Xvfb), typed into
// with xdotool, since an offscreen program takes no input from outside.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace {

class RealProgram {
public:
    // Starts the program in a folder of this test's own, with files put into its
    // crash folder first, and waits for its start-up window.
    bool launch(const QMap<QString, QByteArray>& crashFiles = {}) {
        // A hard link beside the build: the program's folder is where it is started
        // from, and the crash folder must be one of this test's own.
        const QString built = QCoreApplication::applicationDirPath() + "/zelvo-tessara";
        if (!dir.isValid() ||
            ::link(qPrintable(built), qPrintable(dir.filePath("zelvo-tessara"))) != 0)
            return false;
        QDir(dir.path()).mkdir("crash");
        for (auto file = crashFiles.begin(); file != crashFiles.end(); ++file) {
            QFile out(dir.filePath("crash/" + file.key()));
            if (!out.open(QIODevice::WriteOnly) || out.write(file.value()) != file.value().size())
                return false;
        }
        display.start("Xvfb",
                      {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
        if (!display.waitForReadyRead(20000))
            return false;
        env.insert("DISPLAY", ":" + QString::fromLatin1(display.readAll()).trimmed());
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("XDG_CONFIG_HOME", dir.filePath("config"));
        program.setProcessEnvironment(env);
        program.start(dir.filePath("zelvo-tessara"), {});
        return program.waitForStarted() &&
               xdotool({"search", "--sync", "--name", "Start Up Assistant"});
    }

    // Then types into the page of the visual view, which marks the document. On a
    // busy machine the page may not take keys yet, so it types again until it does.
    bool start(const QString& typed = "typed") {
        if (!launch())
            return false;
        for (int attempt = 0; attempt < 5; ++attempt) {
            xdotool({"search", "--name", "^Untitled\\(", "windowfocus", "--sync", "type", "--delay",
                     "50", typed});
            if (xdotool({"sleep", "2", "search", "--name", "\\(\\*\\)"}))
                return true;
        }
        return false;
    }

    // Focuses the visual view and picks the last item of its Options menu.
    bool openCrashRecovery() {
        return xdotool({"search", "--onlyvisible", "--name", "^(Untitled|Zelvo Tessara: )",
                        "windowfocus", "--sync", "key", "alt+p", "sleep", "0.5", "key", "Up",
                        "Return"}) &&
               xdotool(
                   {"search", "--sync", "--onlyvisible", "--name", "^Crash Recovery Wizard$"}) &&
               xdotool({"sleep", "0.5"});
    }

    QByteArray read(const QString& name) {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

// A crash save configured through the wizard outlives a kill that nothing can catch,
// and the next run loads it back through the wizard's list.
TEST(RealProgramEnding, AKilledProgramsCrashSaveLoadsBackInTheNextRun) {
    if (QStandardPaths::findExecutable("Xvfb").isEmpty() ||
        QStandardPaths::findExecutable("xdotool").isEmpty())
        GTEST_SKIP() << "needs Xvfb and xdotool";
    QByteArray saved;
    {
        RealProgram p;
        ASSERT_TRUE(p.start("kept"));
        ASSERT_TRUE(p.openCrashRecovery());
        // The name, a second between saves, and Configure.
        ASSERT_TRUE(p.xdotool({"type", "--delay", "50", "work"}));
        ASSERT_TRUE(p.xdotool({"key", "Tab", "type", "1"}));
        ASSERT_TRUE(p.xdotool({"key", "Tab", "space"}));
        QElapsedTimer waited;
        waited.start();
        while (!p.read("crash/work.crw").contains("kept") && waited.elapsed() < 20000)
            QThread::msleep(200);
        saved = p.read("crash/work.crw");
        ASSERT_TRUE(saved.contains("kept"));
        ::kill(pid_t(p.program.processId()), SIGKILL);
        ASSERT_TRUE(p.program.waitForFinished(10000));
    }
    RealProgram next;
    ASSERT_TRUE(next.launch({{"work.crw", saved}}));
    ASSERT_TRUE(next.openCrashRecovery());
    // Past the name, the timer, Configure and Disable to the list; the first file,
    // Load Document, and OK to the question.
    ASSERT_TRUE(next.xdotool({"key", "Tab", "Tab", "Tab", "Tab", "Home"}));
    ASSERT_TRUE(next.xdotool({"key", "Tab", "space"}));
    ASSERT_TRUE(
        next.xdotool({"search", "--sync", "--onlyvisible", "--name", "^Assistant: Zelvo$"}));
    ASSERT_TRUE(next.xdotool({"sleep", "0.5", "key", "Return"}));
    // The page has no name: Save asks for one, and the file shows what it holds.
    const QString out = next.dir.filePath("out.html");
    ASSERT_TRUE(
        next.xdotool({"sleep", "1", "search", "--onlyvisible", "--name",
                      "^(Untitled|Zelvo Tessara: )", "windowfocus", "--sync", "key", "ctrl+s"}));
    ASSERT_TRUE(next.xdotool({"search", "--sync", "--onlyvisible", "--name", "^Save"}));
    ASSERT_TRUE(next.xdotool({"sleep", "0.5", "type", "--delay", "20", out}));
    ASSERT_TRUE(next.xdotool({"key", "Return"}));
    QElapsedTimer waited;
    waited.start();
    while (!next.read("out.html").contains("kept") && waited.elapsed() < 20000)
        QThread::msleep(200);
    EXPECT_TRUE(next.read("out.html").contains("kept"));
}
