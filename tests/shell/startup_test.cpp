#include "builders/builderkit.h"

#include "help/frmhelp.h"
#include "platform/engine/memoryengine.h"
#include "platform/texteditview.h"
#include "shell/frmsplash.h"
#include "shell/optfunctions.h"
#include "shell/startup.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

QString appear(const TestProgram& program) {
    return program.settings.getSetting(document::kApp, "StartUp Assistant", "appear", "<absent>");
}

void setAppear(TestProgram& program, const std::optional<QString>& value) {
    if (value)
        program.settings.saveSetting(document::kApp, "StartUp Assistant", "appear", *value);
}

void setMru(TestProgram& program, int key, const QString& value) {
    program.settings.saveSetting(document::kApp, "MRUs", QString::number(key), value);
}

} // namespace

TEST(Splash, TicksStepTheBarBringUpTheVisualViewAndLastOfferTheAssistantUnlessTurnedOff) {
    const QStringList statuses =
        QString("Initialising Tessara and Editor|Generating Scripts For Action And Crash Save|"
                "Initialising Tessara and Editor|Starting Tessara|Starting Tessara|"
                "Loading Additional Tools and Managers|Loading Wizards and Help Files|"
                "Starting Zelvo Tessara 3.0 - By Orvek|Please wait....")
            .split('|');
    enum Outcome { Assistant, Nothing, Failure };
    const std::pair<std::optional<QString>, Outcome> cases[] = {
        {"0", Assistant}, {" 0 ", Assistant}, {std::nullopt, Assistant},
        {"1", Nothing},   {"2", Nothing},     {"yes", Failure},
        {"", Failure}};
    for (const auto& [stored, outcome] : cases) {
        SCOPED_TRACE(stored.value_or("<absent>").toStdString());
        TestProgram program;
        setMru(program, 1, "/pages/one.html");
        setAppear(program, stored);
        frmSplash& splash = program.forms->get<frmSplash>();
        splash.show();
        const auto tick = [&] { splash.ui.Timer_Progress.fire(); };
        EXPECT_EQ(splash.ui.lblStatus->text(), "Loading...");
        EXPECT_TRUE(splash.ui.Timer_Progress.enabled() &&
                    splash.ui.Timer_Progress.interval() == 417 &&
                    splash.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        for (int value = 0; value < 9; ++value) {
            tick();
            // Tick 4 brings up the visual view, and the source view hidden with it.
            EXPECT_EQ(
                QString("%1 %2 %3 %4")
                    .arg(splash.ui.ProgressBar->value())
                    .arg(splash.ui.lblStatus->text())
                    .arg(splash.isVisible())
                    .arg(program.forms->isLoaded<Zelvo>()),
                QString("%1 %2 1 %3").arg(10 * (value + 1)).arg(statuses[value]).arg(value >= 4));
            if (value == 4) {
                // The splash stays in front of the view that has just come up.
                QApplication::processEvents();
                EXPECT_EQ(QApplication::activeWindow(), splash.window());
            }
        }
        tick();

        Tessara& tessara = program.forms->get<Tessara>();
        EXPECT_TRUE(tessara.isVisible() && !program.forms->get<Zelvo>().isVisible());
        EXPECT_GE(static_cast<MemoryEngine&>(*tessara.ui.txtComp).focusCount(), 1);
        EXPECT_EQ(program.forms->isLoaded<StartUp>() && program.forms->get<StartUp>().isVisible(),
                  outcome == Assistant);
        EXPECT_TRUE(program.failures.empty()) << "the tick's own handler takes any failure";
        // Without the assistant nothing captions the recent menus at start.
        EXPECT_EQ(tessara.ui.recent[0]->text(), outcome == Assistant ? "/pages/one.html" : "");
        EXPECT_EQ(program.forms->isLoaded<frmSplash>(), outcome == Failure);
        if (outcome != Failure) {
            EXPECT_TRUE(program.prompts.asked.empty());
            continue;
        }
        // The splash stays loaded and hidden, and the ticks past the last do nothing.
        for (int i = 0; i < 20; ++i)
            tick();
        EXPECT_EQ(program.prompts.asked.size(), 1u);
        EXPECT_EQ(question(program),
                  "Error 01:\r\nStart up Error|Assistant: Zelvo|" + QString::number(vbCritical));
        EXPECT_TRUE(!splash.isVisible() && splash.ui.ProgressBar->value() == 90);
    }
}

TEST(Assistant, LoadFillsTheRecentListAndCaptionsOrHidesBothMenus) {
    Views v;
    for (const int key : {0, 1, 3, 5})
        setMru(v.program, key, QString("/p/%1.html").arg(key));
    StartUp& assistant = v.program.forms->get<StartUp>();
    QListWidget& list = *assistant.ui.listRecent;
    EXPECT_EQ(rowsOf(&list), QStringList({"/p/1.html", "/p/3.html", "/p/5.html"}));
    // Keys one to five caption menu entries zero to four; an entry without a key hides.
    const QStringList menus = {"/p/1.html", "", "/p/3.html", "", "/p/5.html"};
    for (std::size_t i = 0; i < 5; ++i)
        for (QAction* item : {v.tessara.ui.recent[i], v.zelvo.ui.recent[i]})
            EXPECT_EQ(item->isVisible() ? item->text() : "", menus[int(i)]) << i;
    EXPECT_FALSE(assistant.isVisible()) << "loaded hidden, as every form";

    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:");
    list.setCurrentRow(1);
    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:/p/3.html");

    // Show Start Up brings it up whatever is stored, with the recent files.
    Views w;
    setAppear(w.program, "1");
    setMru(w.program, 2, "/p/two.html");
    w.tessara.ui.mnuShowStartUp->trigger();
    EXPECT_TRUE(w.program.forms->get<StartUp>().isVisible());
    EXPECT_EQ(w.zelvo.ui.recent[1]->text(), "/p/two.html");
}

TEST(Assistant, TipsComeFromTheTipsFile) {
    // A missing file, one tip, an empty line (a tip too): Next Tip has nothing else to
    // pick. Null texts stand for the shipped file, where Next Tip picks at random.
    const std::pair<std::optional<QString>, QString> cases[] = {
        {std::nullopt, "That the TIPOFDAY.TXT file was not found?"},
        {"Only this one\r\n", "Only this one"},
        {"\r\n", ""},
        {QString(), QString()}};
    for (const auto& [file, shown] : cases) {
        Views v;
        const QString path = v.program.folder.path("misc/TIPOFDAY.TXT");
        const QStringList tips = readFile(path).split('\n', Qt::SkipEmptyParts);
        if (!file || !file->isNull())
            QFile::remove(path);
        if (file && !file->isNull())
            writeFile(path, *file);
        StartUp& assistant = v.program.forms->get<StartUp>();
        QSet<QString> seen;
        for (int i = 0; i < (shown.isNull() ? 200 : 2); ++i) {
            const QString tip = assistant.ui.lblTipText->text();
            EXPECT_TRUE(shown.isNull() ? tips.contains(tip) : tip == shown) << tip.toStdString();
            seen.insert(tip);
            v.run([&] { assistant.cmdNextTip_Click(); });
        }
        EXPECT_EQ(seen.size() > 1, shown.isNull());
    }
}

TEST(Assistant, EnableStartUpFlipsTheSettingAndDontShowAtStartupFailsBeforeWriting) {
    // The value the first use stores; empty where it fails on what is stored.
    const std::pair<std::optional<QString>, QString> cases[] = {
        {std::nullopt, "1"}, {"0", "1"}, {"1", "0"}, {"7", "1"}, {"on", ""}};
    for (const auto& [stored, first] : cases) {
        SCOPED_TRACE(stored.value_or("<absent>").toStdString());
        Views v;
        setAppear(v.program, stored);
        QAction* item = v.tessara.ui.mnuEnableStartUp;
        EXPECT_FALSE(item->isChecked()) << "no mark at start, whatever is stored";
        item->trigger();
        EXPECT_EQ(failure(v.program), first.isEmpty() ? RuntimeFailure::TypeMismatch : 0);
        EXPECT_EQ(appear(v.program), first.isEmpty() ? *stored : first);
        if (first.isEmpty())
            continue;
        EXPECT_EQ(item->isChecked(), first == "0");
        item->trigger();
        EXPECT_EQ(appear(v.program), first == "1" ? "0" : "1");
        EXPECT_EQ(item->isChecked(), first == "1");
    }

    // The check box ends the program before its question and before any write.
    Views v;
    StartUp& assistant = v.program.forms->get<StartUp>();
    assistant.show();
    assistant.ui.chkStartup->click();
    EXPECT_EQ(failure(v.program), RuntimeFailure::TypeMismatch);
    EXPECT_TRUE(v.program.prompts.asked.empty());
    EXPECT_EQ(appear(v.program), "<absent>");
    EXPECT_TRUE(v.program.forms->isLoaded<StartUp>());
}

TEST(Assistant, EachWayToBeginClosesItAndTwoOpenAPage) {
    // Open Existing and a double-clicked recent file, each once opening and once
    // not (a cancelled dialog, a file that has gone), then the buttons that only close.
    const std::pair<QString, bool> ways[] = {{"btnOpenExist", true}, {"btnOpenExist", false},
                                             {"listRecent", true},   {"listRecent", false},
                                             {"btnBlank", false},    {"btnTemplates", false},
                                             {"btnCrash", false},    {"btnHTMLTutor", false}};
    for (const auto& [name, opens] : ways) {
        SCOPED_TRACE(name.toStdString() + (opens ? " opening" : ""));
        Views v;
        const QString path = v.file("page.html", "<HTML><BODY><P>opened</P></BODY></HTML>");
        setMru(v.program, 1, v.program.scratch("gone.html"));
        setMru(v.program, 2, path);
        v.tag() = "kept";
        v.zelvo.ui.star.setText("*");
        const QString captionBefore = v.tessara.caption();
        v.program.pickers.files = {opens ? std::optional<QString>(path) : std::nullopt};
        StartUp& assistant = v.program.forms->get<StartUp>();
        assistant.show();
        QListWidget& list = *assistant.ui.listRecent;
        if (name == "listRecent") {
            list.setCurrentRow(opens ? 1 : 0);
            emit list.itemDoubleClicked(list.currentItem());
        } else {
            assistant.window()->findChild<QPushButton*>(name)->click();
        }
        ASSERT_EQ(v.program.pickers.asked.size(), name == "btnOpenExist" ? 1u : 0u);
        EXPECT_TRUE(name != "btnOpenExist" ||
                    v.program.pickers.asked[0].kind == PickerRequest::Open);
        EXPECT_EQ(v.zelvo.ui.comdlg.defaultExt,
                  name == "listRecent" || name == "btnOpenExist" ? "html" : "");
        EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
        EXPECT_TRUE(v.program.failures.empty());
        EXPECT_EQ(v.mru(5), "") << "the recent list is not touched";
        EXPECT_EQ(v.tag(), opens ? path : "kept");
        EXPECT_EQ(v.fileName(), opens ? path : "") << "the name is left in the dialog";
        EXPECT_EQ(v.tessara.caption(),
                  opens ? "Zelvo Tessara: By Orvek - (*) " + path : captionBefore);
        EXPECT_EQ(v.txtComp().documentHTML().contains("<P>opened</P>"), opens);
    }
}

TEST(Help, StartUpHelpAMissingPageAndABorrowedCaption) {
    Views v;
    StartUp& assistant = v.program.forms->get<StartUp>();
    assistant.show();
    assistant.ui.btnStartUpHelp->click();
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
    frmHelp& shown = v.program.forms->get<frmHelp>();
    EXPECT_TRUE(shown.isVisible() && shown.ui.txtHelpView->isReadOnly());
    EXPECT_EQ(shown.ui.txtHelp.text(), readFile(v.program.folder.path("misc/suwiz.zhp")));
    shown.ui.Command1->click();

    v.run([&] { showHelpPage(*v.program.forms, "nosuchpage.zhp"); });
    EXPECT_FALSE(v.program.forms->get<frmHelp>().isVisible());
    EXPECT_TRUE(v.program.prompts.asked.empty() && v.program.failures.empty());

    // A caption another window gave the viewer goes with it when it closes.
    v.program.forms->get<frmHelp>().setCaption("The Document without any tags: Zelvo Tessara");
    v.program.forms->get<frmHelp>().ui.Command1->click();
    writeFile(v.program.folder.path("misc/mine.zhp"), "Line one\r\nLine two");
    v.run([&] { showHelpPage(*v.program.forms, "MINE.ZHP"); });
    frmHelp& help = v.program.forms->get<frmHelp>();
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.caption(), "Specific Help: Zelvo Tessara");
    EXPECT_EQ(help.ui.txtHelp.text(), "Line one\r\nLine two");
}
