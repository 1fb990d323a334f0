#include "views.h"

#include "help/frmhelp.h"
#include "platform/engine/memoryengine.h"
#include "platform/runtimefailure.h"
#include "platform/texteditview.h"
#include "shell/closing.h"
#include "shell/frmsplash.h"
#include "shell/optfunctions.h"
#include "shell/startup.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>

#include <gtest/gtest.h>

#include <optional>

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

// Runs the splash's next ticks as its timer would.
void tick(TestProgram& program, int count = 1) {
    for (int i = 0; i < count; ++i)
        program.forms->get<frmSplash>().ui.Timer_Progress.fire();
}

frmSplash& showSplash(TestProgram& program, const std::optional<QString>& stored) {
    setAppear(program, stored);
    program.event([&] { program.forms->get<frmSplash>().show(); });
    return program.forms->get<frmSplash>();
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
        frmSplash& splash = showSplash(program, stored);
        EXPECT_EQ(splash.ui.lblStatus->text(), "Loading...");
        EXPECT_EQ(splash.ui.ProgressBar->value(), 0);
        EXPECT_TRUE(splash.ui.Timer_Progress.enabled());
        EXPECT_EQ(splash.ui.Timer_Progress.interval(), 417);
        EXPECT_TRUE(splash.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        for (int value = 0; value < 9; ++value) {
            tick(program);
            EXPECT_EQ(splash.ui.ProgressBar->value(), 10 * (value + 1)) << value;
            EXPECT_EQ(splash.ui.lblStatus->text(), statuses[value]) << value;
            EXPECT_TRUE(splash.isVisible()) << value;
            // Tick 4 brings up the visual view, and the source view hidden with it.
            ASSERT_EQ(program.forms->isLoaded<Tessara>(), value >= 4) << value;
            EXPECT_EQ(program.forms->isLoaded<Zelvo>(), value >= 4) << value;
            if (value == 4) {
                // The splash stays in front of the view that has just come up.
                QApplication::processEvents();
                EXPECT_EQ(QApplication::activeWindow(), splash.window());
            }
        }
        tick(program);

        Tessara& tessara = program.forms->get<Tessara>();
        EXPECT_TRUE(tessara.isVisible());
        EXPECT_FALSE(program.forms->get<Zelvo>().isVisible());
        EXPECT_GE(static_cast<MemoryEngine&>(*tessara.ui.txtComp).focusCount(), 1);
        ASSERT_EQ(program.forms->isLoaded<StartUp>(), outcome == Assistant);
        if (outcome == Assistant) {
            EXPECT_TRUE(program.forms->get<StartUp>().isVisible());
        }
        EXPECT_TRUE(program.failures.empty()) << "the tick's own handler takes any failure";
        if (outcome != Failure) {
            EXPECT_FALSE(program.forms->isLoaded<frmSplash>());
            // Without the assistant nothing captions the recent menus at start.
            EXPECT_EQ(tessara.ui.recent[0]->text(), outcome == Assistant ? "/pages/one.html" : "");
            EXPECT_TRUE(program.prompts.asked.empty());
            continue;
        }
        EXPECT_EQ(question(program),
                  "Error 01:\r\nStart up Error|Assistant: Zelvo|" + QString::number(vbCritical));
        // The splash stays loaded and hidden, and the ticks past the last do nothing.
        ASSERT_TRUE(program.forms->isLoaded<frmSplash>());
        EXPECT_TRUE(splash.ui.Timer_Progress.enabled());
        tick(program, 20);
        EXPECT_EQ(program.prompts.asked.size(), 1u);
        EXPECT_FALSE(splash.isVisible());
        EXPECT_EQ(splash.ui.ProgressBar->value(), 90);
    }
}

TEST(Assistant, LoadFillsTheRecentListAndCaptionsOrHidesBothMenus) {
    Views v;
    for (const auto& [key, value] : std::initializer_list<std::pair<int, QString>>{
             {0, "/p/zero.html"}, {1, "/p/one.html"}, {3, "/p/three.html"}, {5, "/p/five.html"}})
        setMru(v.program, key, value);
    StartUp& assistant = v.program.forms->get<StartUp>();
    QListWidget& list = *assistant.ui.listRecent;
    QStringList listed;
    for (int row = 0; row < list.count(); ++row)
        listed << list.item(row)->text();
    EXPECT_EQ(listed, QStringList({"/p/one.html", "/p/three.html", "/p/five.html"}));
    // Keys one to five caption menu entries zero to four; an entry without a key hides.
    const QStringList menus = {"/p/one.html", "", "/p/three.html", "", "/p/five.html"};
    for (std::size_t i = 0; i < 5; ++i) {
        for (QAction* item : {v.tessara.ui.recent[i], v.zelvo.ui.recent[i]}) {
            EXPECT_EQ(item->isVisible() ? item->text() : "", menus[int(i)]) << i;
        }
    }
    EXPECT_FALSE(assistant.isVisible()) << "loaded hidden, as every form";

    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:");
    list.setCurrentRow(1);
    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:/p/three.html");

    // Show Start Up brings it up whatever is stored, with the recent files.
    Views w;
    setAppear(w.program, "1");
    setMru(w.program, 2, "/p/two.html");
    w.tessara.ui.mnuShowStartUp->trigger();
    EXPECT_TRUE(w.program.forms->get<StartUp>().isVisible());
    EXPECT_EQ(w.zelvo.ui.recent[1]->text(), "/p/two.html");

    // The main windows close the splash and the assistant with them.
    w.program.forms->get<frmSplash>();
    unloadDialogs(*w.program.forms);
    EXPECT_FALSE(w.program.forms->isLoaded<frmSplash>());
    EXPECT_FALSE(w.program.forms->isLoaded<StartUp>());
}

TEST(Assistant, TipsComeFromTheTipsFile) {
    const std::pair<std::optional<QString>, QString> cases[] = {
        {std::nullopt, "That the TIPOFDAY.TXT file was not found?"},
        {"Only this one\r\n", "Only this one"},
        {"Without a break", "Without a break"},
        {"\r\n", ""}};
    for (const auto& [file, shown] : cases) {
        Views v;
        const QString path = v.program.folder.path("misc/TIPOFDAY.TXT");
        QFile::remove(path);
        if (file)
            writeFile(path, *file);
        StartUp& assistant = v.program.forms->get<StartUp>();
        EXPECT_EQ(assistant.ui.lblTipText->text(), shown);
        v.run([&] { assistant.cmdNextTip_Click(); });
        EXPECT_EQ(assistant.ui.lblTipText->text(), shown) << "nothing else to pick";
        EXPECT_TRUE(v.program.failures.empty());
    }

    // The shipped file: one tip at a time, Next Tip picking at random.
    Views v;
    const QStringList tips =
        readFile(v.program.folder.path("misc/TIPOFDAY.TXT")).split('\n', Qt::SkipEmptyParts);
    ASSERT_GE(tips.size(), 10);
    StartUp& assistant = v.program.forms->get<StartUp>();
    QSet<QString> seen;
    for (int i = 0; i < 200; ++i) {
        EXPECT_TRUE(tips.contains(assistant.ui.lblTipText->text()));
        seen.insert(assistant.ui.lblTipText->text());
        v.run([&] { assistant.cmdNextTip_Click(); });
    }
    EXPECT_GT(seen.size(), 1);
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
        if (first.isEmpty()) {
            EXPECT_EQ(failure(v.program), RuntimeFailure::TypeMismatch);
            EXPECT_EQ(appear(v.program), *stored);
            continue;
        }
        EXPECT_EQ(appear(v.program), first);
        EXPECT_EQ(item->isChecked(), first == "0");
        item->trigger();
        EXPECT_EQ(appear(v.program), first == "1" ? "0" : "1");
        EXPECT_EQ(item->isChecked(), first == "1");
        EXPECT_TRUE(v.program.failures.empty());
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
    const std::pair<const char*, bool> ways[] = {{"btnOpenExist", true}, {"btnOpenExist", false},
                                                 {"listRecent", true},   {"listRecent", false},
                                                 {"btnBlank", false},    {"btnTemplates", false},
                                                 {"btnCrash", false},    {"btnHTMLTutor", false}};
    for (const auto& [name, opens] : ways) {
        SCOPED_TRACE(std::string(name) + (opens ? " opening" : ""));
        Views v;
        const QString path = v.file("page.html", "<HTML><BODY><P>opened</P></BODY></HTML>");
        setMru(v.program, 1, v.program.scratch("gone.html"));
        setMru(v.program, 2, path);
        v.tag() = "kept";
        v.zelvo.ui.star.setText("*");
        const QString captionBefore = v.tessara.caption();
        const QString pageBefore = v.txtComp().documentHTML();
        v.program.pickers.files = {opens ? std::optional<QString>(path) : std::nullopt};
        StartUp& assistant = v.program.forms->get<StartUp>();
        assistant.show();
        QListWidget& list = *assistant.ui.listRecent;
        if (QString(name) == "listRecent") {
            list.setCurrentRow(opens ? 1 : 0);
            emit list.itemDoubleClicked(list.currentItem());
            EXPECT_EQ(v.zelvo.ui.comdlg.defaultExt, "html");
        } else {
            auto* target = assistant.window()->findChild<QPushButton*>(name);
            ASSERT_NE(target, nullptr);
            target->click();
        }
        ASSERT_EQ(v.program.pickers.asked.size(), QString(name) == "btnOpenExist" ? 1u : 0u);
        if (!v.program.pickers.asked.empty()) {
            EXPECT_EQ(v.program.pickers.asked[0].kind, PickerRequest::Open);
            EXPECT_EQ(v.program.pickers.asked[0].file.defaultExt, "html");
        }
        EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
        EXPECT_TRUE(v.program.failures.empty());
        EXPECT_EQ(v.mru(5), "") << "the recent list is not touched";
        EXPECT_EQ(v.tag(), opens ? path : "kept");
        EXPECT_EQ(v.fileName(), opens ? path : "") << "the name is left in the dialog";
        EXPECT_EQ(v.tessara.caption(),
                  opens ? "Zelvo Tessara: By Orvek - (*) " + path : captionBefore);
        if (opens) {
            EXPECT_TRUE(v.txtComp().documentHTML().contains("<P>opened</P>"));
        } else {
            EXPECT_EQ(v.txtComp().documentHTML(), pageBefore);
        }
    }
}

TEST(Help, StartUpHelpAMissingPageAndABorrowedCaption) {
    Views v;
    StartUp& assistant = v.program.forms->get<StartUp>();
    assistant.show();
    assistant.ui.btnStartUpHelp->click();
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
    ASSERT_TRUE(v.program.forms->isLoaded<frmHelp>());
    frmHelp& shown = v.program.forms->get<frmHelp>();
    EXPECT_TRUE(shown.isVisible());
    EXPECT_EQ(shown.ui.txtHelp.text(), readFile(v.program.folder.path("misc/suwiz.zhp")));
    EXPECT_TRUE(shown.ui.txtHelpView->isReadOnly());
    shown.ui.Command1->click();

    v.run([&] { showHelpPage(*v.program.forms, "nosuchpage.zhp"); });
    EXPECT_FALSE(v.program.forms->isLoaded<frmHelp>() &&
                 v.program.forms->get<frmHelp>().isVisible());
    EXPECT_TRUE(v.program.prompts.asked.empty());

    frmHelp& borrowed = v.program.forms->get<frmHelp>();
    borrowed.setCaption("The Document without any tags: Zelvo Tessara");
    borrowed.show();
    borrowed.ui.Command1->click();
    EXPECT_FALSE(v.program.forms->isLoaded<frmHelp>());
    writeFile(v.program.folder.path("misc/mine.zhp"), "Line one\r\nLine two");
    v.run([&] { showHelpPage(*v.program.forms, "MINE.ZHP"); });
    frmHelp& help = v.program.forms->get<frmHelp>();
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.caption(), "Specific Help: Zelvo Tessara");
    EXPECT_EQ(help.ui.txtHelp.text(), "Line one\r\nLine two");
    EXPECT_TRUE(v.program.failures.empty());
}
