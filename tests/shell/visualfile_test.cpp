#include "views.h"

#include "platform/engine/pageengine.h"

#include <QAction>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(VisualFile, OpenOnDirtyAnsweredYesSavesAndLosesThePath) {
    Views v;
    const QString path = v.file("doc.html", "");
    v.load(path, "<P>mine</P>");
    v.program.prompts.answers = {vbYes};
    v.run([&] { v.tessara.mnuOpen(); });

    EXPECT_TRUE(readFile(path).contains("<P>mine</P>"));
    EXPECT_TRUE(v.program.pickers.asked.empty()) << "no file was opened";
    EXPECT_EQ(v.tag() + v.star(), "");
    EXPECT_TRUE(v.program.failures.empty());
}

// Open and Recent load the page and record its path; only Open clears the name.
TEST(VisualFile, OpenAndRecentLoadThePageAndRecordThePath) {
    for (const bool recent : {false, true}) {
        Views v;
        const QString path = v.file("page.html", "<HTML><BODY><P>opened</P></BODY></HTML>");
        v.tag() = v.program.scratch("previous.html");
        v.program.pickers.files = {path};
        v.tessara.ui.recent[1]->setText(path);
        (recent ? v.tessara.ui.recent[1] : v.tessara.ui.mnuOpen)->trigger();
        EXPECT_TRUE(v.txtComp().documentHTML().contains("opened"));
        EXPECT_EQ(v.tag(), path);
        EXPECT_EQ(v.fileName(), recent ? path : "");
        EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - () " + path);
    }
}

// Only the engine's own generator line is rewritten (the rest of the save is checked
// on the real engine); without a path, Cancel changes nothing until a command has
// set CancelError, and then ends the program.
TEST(VisualFile, SaveRewritesTheGeneratorLineOnlyAndCancelEndsOnlyAfterCancelError) {
    Views v;
    const QString path = v.program.scratch("saved.html");
    v.tag() = path;
    v.zelvo.ui.star.setText("*");
    const QString kept = "<META content=\"MSHTML 6.00.2800.1106\" name=GENERATOR>\r\n"
                         "<META content=\"MSHTML 6.00.2600.0\" name=GENERATOR>";
    v.txtComp().setDocumentHTML("<HTML><HEAD>\r\n" + kEngineGeneratorMarker + "\r\n" + kept +
                                "\r\n</HEAD><BODY><P>x</P></BODY></HTML>");
    v.tessara.ui.mnuSave->trigger();
    EXPECT_TRUE(readFile(path).contains(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"
                                        "\r\n" +
                                        kept));
    EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - () " + path);

    v.tag() = "";
    v.zelvo.ui.star.setText("*");
    v.program.pickers.files = {std::nullopt, std::nullopt};
    EXPECT_TRUE(v.run([&] { v.tessara.mnuSave(); }));
    EXPECT_EQ(v.star() + v.tag(), "*");
    v.zelvo.ui.comdlg.cancelError = true;
    EXPECT_FALSE(v.run([&] { v.tessara.mnuSave(); }));
    EXPECT_EQ(failure(v.program), RuntimeFailure::Cancel);
}

TEST(VisualFile, NewAsksAlwaysAndKeepsTheMark) {
    Views v;
    v.load("/some/path.html", "<P>old</P>");
    v.zelvo.ui.comdlg.fileName = "/some/path.html";
    for (const int answer : {vbNo, vbYes}) {
        v.program.prompts.answers = {answer};
        v.run([&] { v.tessara.mnuNew(); });
        EXPECT_EQ(v.tag(), answer == vbNo ? "/some/path.html" : "");
    }
    EXPECT_EQ(v.program.prompts.asked.size(), 2u);
    EXPECT_EQ(v.tag() + v.fileName() + v.star(), "*");
    EXPECT_FALSE(v.txtComp().documentHTML().contains("old"));
    EXPECT_EQ(v.tessara.caption(), "Untitled(): Zelvo Tessara 3.0 - By Orvek");
}

// Exit asks one question, from the menu or the frame's close button; on Yes it
// deletes the crash file it knows of and writes the setting, unless that delete
// fails. The visual view knows no file while its crash timer has no name.
TEST(VisualFile, ExitAsksOnlyOnceAndWritesTheCrashSettingWhenTheDeleteWorks) {
    enum Crash { Missing, Present, Unnamed };
    const struct {
        bool visual;
        Crash crash;
        bool byFrame;
        const char* setting;
    } cases[] = {
        {false, Missing, false, "unset"}, {false, Present, true, "0"},
        {true, Missing, true, "unset"},   {true, Present, false, "0"},
        {true, Unnamed, false, "0"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.visual << c.crash << c.byFrame);
        Views v;
        v.zelvo.ui.star.setText("*");
        const QString crashFile =
            c.visual ? v.program.scratch("docname") : document::tempCrashFile();
        if (c.visual && c.crash != Unnamed)
            v.tessara.ui.TimeCrashSave.tag = crashFile;
        QFile::remove(crashFile);
        if (c.crash == Present)
            writeFile(crashFile, "x");
        Form& view = c.visual ? static_cast<Form&>(v.tessara) : v.zelvo;
        QAction* exit = c.visual ? v.tessara.ui.mnuExit : v.zelvo.ui.mnuExit;
        view.show();
        v.program.prompts.answers = {vbNo, vbYes};
        for (int i = 0; i < 2; ++i)
            c.byFrame ? void(view.window()->close()) : exit->trigger();
        EXPECT_EQ(v.asked(), QStringList({"Are you sure you want to exit?",
                                          "Are you sure you want to exit?"}));
        EXPECT_EQ(v.program.processEnds, 1) << "No keeps the program";
        EXPECT_TRUE(view.isVisible());
        EXPECT_FALSE(QFile::exists(crashFile));
        EXPECT_EQ(v.program.settings.getSetting(document::kApp, "Crash", "crash", "unset"),
                  c.setting);
    }
}
