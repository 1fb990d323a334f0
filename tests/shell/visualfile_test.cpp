#include "views.h"

#include "platform/runtimefailure.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(VisualFile, OpenOnDirtyAnsweredYesSavesAndLosesThePath) {
    Views v;
    const QString path = v.file("doc.html", "");
    v.tag() = path;
    v.zelvo.ui.star.setText("*");
    v.txtComp().setDocumentHTML("<P>mine</P>");
    v.program.prompts.answers = {vbYes};
    v.run([&] { v.tessara.mnuOpen(); });

    EXPECT_TRUE(readFile(path).contains("<P>mine</P>"));
    EXPECT_TRUE(v.program.pickers.asked.empty()) << "no file was opened";
    EXPECT_EQ(v.tag(), "");
    EXPECT_EQ(v.star(), "");
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(VisualFile, OpenLoadsThePageAndRecordsThePath) {
    Views v;
    const QString path = v.file("page.html", "<HTML><BODY><P>opened</P></BODY></HTML>");
    v.program.pickers.files = {path};
    v.run([&] { v.tessara.mnuOpen(); });
    EXPECT_TRUE(v.txtComp().documentHTML().contains("opened"));
    EXPECT_EQ(v.tag(), path);
    EXPECT_EQ(v.fileName(), "");
    EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - () " + path);
    EXPECT_EQ(v.program.pickers.asked[0].file.defaultExt, "html");
}

TEST(VisualFile, SaveRewritesTheSourceBufferWithTheGeneratorRuleOnly) {
    Views v;
    const QString path = v.program.scratch("saved.html");
    v.tag() = path;
    v.zelvo.ui.star.setText("*");
    const QString page = "<HTML><HEAD>\r\n<META content=\"MSHTML 6.00.2600.0\" name=GENERATOR>\r\n"
                         "</HEAD><BODY><P>x</P></BODY></HTML>";
    v.txtComp().setDocumentHTML(page);
    v.run([&] { v.tessara.mnuSave(); });

    const QString written = readFile(path);
    EXPECT_TRUE(written.contains("MSHTML 6.00.2600.0")) << "a direct save keeps that marker";
    EXPECT_EQ(written, v.area().text() + "\r\n") << "the source buffer is what was written";
    EXPECT_EQ(v.star(), "");
    EXPECT_TRUE(v.tessara.caption().startsWith("Zelvo Tessara: By Orvek - () "));
}

TEST(VisualFile, SaveWithoutAPathCancelledBeforeCancelErrorWasSetChangesNothing) {
    Views v;
    v.zelvo.ui.star.setText("*");
    v.program.pickers.files = {std::nullopt};
    EXPECT_TRUE(v.run([&] { v.tessara.mnuSave(); }));
    EXPECT_EQ(v.star(), "*");
    EXPECT_EQ(v.tag(), "");

    // After any command set CancelError, the same Cancel ends the program.
    v.zelvo.ui.comdlg.cancelError = true;
    v.program.pickers.files = {std::nullopt};
    EXPECT_FALSE(v.run([&] { v.tessara.mnuSave(); }));
    ASSERT_EQ(v.program.failures.size(), 1u);
    EXPECT_EQ(v.program.failures[0].number(), RuntimeFailure::Cancel);
}

TEST(VisualFile, NewAsksAlwaysAndKeepsTheMark) {
    Views v;
    v.tag() = "/some/path.html";
    v.zelvo.ui.comdlg.fileName = "/some/path.html";
    v.zelvo.ui.star.setText("*");
    v.txtComp().setDocumentHTML("<P>old</P>");

    v.program.prompts.answers = {vbNo};
    v.run([&] { v.tessara.mnuNew(); });
    EXPECT_EQ(v.tag(), "/some/path.html");
    ASSERT_EQ(v.program.prompts.asked.size(), 1u);
    EXPECT_EQ(v.program.prompts.asked[0].style, vbYesNo | vbQuestion | vbDefaultButton2);

    v.program.prompts.answers = {vbYes};
    v.run([&] { v.tessara.mnuNew(); });
    EXPECT_EQ(v.tag(), "");
    EXPECT_EQ(v.fileName(), "");
    EXPECT_EQ(v.star(), "*");
    EXPECT_FALSE(v.txtComp().documentHTML().contains("old"));
    EXPECT_EQ(v.tessara.caption(), "Untitled(): Zelvo Tessara 3.0 - By Orvek");
}

TEST(VisualFile, ExitAsksOnlyOnceAndWritesTheCrashSettingWhenTheDeleteWorks) {
    for (const bool visual : {false, true}) {
        Views v;
        v.zelvo.ui.star.setText("*");
        const QString crashFile = visual ? v.program.scratch("docname") : document::tempCrashFile();
        if (visual)
            v.tessara.ui.TimeCrashSave.tag = crashFile;

        // Without the file the delete fails and the setting is left alone.
        QFile::remove(crashFile);
        v.program.prompts.answers = {vbYes};
        v.run([&] { visual ? v.tessara.mnuExit() : v.zelvo.mnuExit(); });
        EXPECT_EQ(v.program.processEnds, 1);
        EXPECT_EQ(v.asked(), QStringList{"Are you sure you want to exit?"});
        EXPECT_EQ(v.program.prompts.asked[0].title, "Confirm Exit: Zelvo Tessara");
        EXPECT_EQ(v.program.settings.getSetting(document::kApp, "Crash", "crash", "unset"),
                  "unset");

        writeFile(crashFile, "x");
        v.program.prompts.answers = {vbYes};
        v.run([&] { visual ? v.tessara.mnuExit() : v.zelvo.mnuExit(); });
        EXPECT_FALSE(QFile::exists(crashFile));
        EXPECT_EQ(v.program.settings.getSetting(document::kApp, "Crash", "crash"), "0");

        v.program.prompts.answers = {vbNo};
        v.run([&] { visual ? v.tessara.mnuExit() : v.zelvo.mnuExit(); });
        EXPECT_EQ(v.program.processEnds, 2);
    }
}
