#include "platform/commondialog.h"
#include "platform/programfolder.h"
#include "support/scripted.h"
#include "testhelpers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace zt;

TEST(ProgramFolder, FoldsCaseOfEachPartAgainstWhatExists) {
    QTemporaryDir dir;
    QDir(dir.path()).mkpath("Crash");
    QDir(dir.path()).mkpath("HTMLTutor/Lessons");
    QFile(dir.path() + "/HTMLTutor/Lessons/One.htm").open(QIODevice::WriteOnly);
    ProgramFolder folder(dir.path());

    EXPECT_EQ(folder.path("crash"), dir.path() + "/Crash");
    EXPECT_EQ(folder.path("\\htmltutor\\lessons\\one.htm"),
              dir.path() + "/HTMLTutor/Lessons/One.htm");
    EXPECT_EQ(folder.path("misc/new.zhp"), dir.path() + "/misc/new.zhp") << "kept as written";
    EXPECT_EQ(folder.path("Crash/a.crw"), dir.path() + "/Crash/a.crw");
}

TEST(CommonDialog, CancelKeepsValuesOrFailsAndSavedNamesGetTheDefaultExtension) {
    test::ScriptedPickers pickers;
    CommonDialog dlg(pickers);
    dlg.fileName = "/old.html";
    dlg.filter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm";
    dlg.defaultExt = "html";

    pickers.files.push_back(std::nullopt);
    dlg.showSave();
    EXPECT_EQ(dlg.fileName, "/old.html");
    ASSERT_EQ(pickers.asked.size(), 1u);
    EXPECT_EQ(pickers.asked[0].kind, test::PickerRequest::Save);
    EXPECT_EQ(pickers.asked[0].file.filter, dlg.filter);
    EXPECT_EQ(pickers.asked[0].file.fileName, "/old.html");

    dlg.cancelError = true;
    pickers.files.push_back(std::nullopt);
    EXPECT_EQ(test::failureOf([&] { dlg.showOpen(); }), RuntimeFailure::Cancel);
    EXPECT_EQ(dlg.fileName, "/old.html");

    // A saved name gets the default extension; Open takes the name as chosen.
    dlg.cancelError = false;
    struct Case {
        const char* ext;
        const char* chosen;
        const char* expected;
    } cases[] = {{"html", "/d/page", "/d/page.html"},
                 {"html", "/d/page.htm", "/d/page.htm"},
                 {"*.html", "/d/page", "/d/page"},
                 {"", "/d/page", "/d/page"}};
    for (const auto& c : cases) {
        dlg.defaultExt = c.ext;
        pickers.files.push_back(QString(c.chosen));
        dlg.showSave();
        EXPECT_EQ(dlg.fileName, c.expected) << c.ext << " " << c.chosen;
    }
    dlg.defaultExt = "html";
    pickers.files.push_back(QString("/d/other"));
    dlg.showOpen();
    EXPECT_EQ(dlg.fileName, "/d/other");

    // A cancelled colour keeps the last choice, 0 on first use.
    pickers.colors = {std::nullopt, 0x0000FFu, std::nullopt};
    for (const quint32 want : {0u, 0x0000FFu, 0x0000FFu}) {
        dlg.showColor();
        EXPECT_EQ(dlg.color, want);
    }
}
