#include "views.h"

#include "help/frmhelp.h"
#include "platform/memoryengine.h"
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

const QString kSection = "StartUp Assistant";
const QString kNotFound = "That the TIPOFDAY.TXT file was not found?";

QString appear(const TestProgram& program) {
    return program.settings.getSetting(document::kApp, kSection, "appear", "<absent>");
}

void setAppear(TestProgram& program, const std::optional<QString>& value) {
    if (value)
        program.settings.saveSetting(document::kApp, kSection, "appear", *value);
}

void setMru(TestProgram& program, int key, const QString& value) {
    program.settings.saveSetting(document::kApp, "MRUs", QString::number(key), value);
}

QString tipsFile(const TestProgram& program) {
    return program.folder.path("misc/TIPOFDAY.TXT");
}

// Runs the splash's next tick as its timer would.
void tick(TestProgram& program) {
    program.forms->get<frmSplash>().ui.Timer_Progress.fire();
}

} // namespace

TEST(Splash, TicksStepTheBarAndBringUpTheVisualViewHalfWay) {
    TestProgram program;
    setAppear(program, "1");
    program.event([&] { program.forms->get<frmSplash>().show(); });
    frmSplash& splash = program.forms->get<frmSplash>();
    EXPECT_EQ(splash.ui.lblStatus->text(), "Loading...");
    EXPECT_EQ(splash.ui.ProgressBar->value(), 0);
    EXPECT_TRUE(splash.ui.Timer_Progress.enabled());
    EXPECT_EQ(splash.ui.Timer_Progress.interval(), 417);
    EXPECT_TRUE(splash.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));

    struct Step {
        int progress;
        QString status;
    };
    const Step steps[] = {
        {10, "Initialising Tessara and Editor"},
        {20, "Generating Scripts For Action And Crash Save"},
        {30, "Initialising Tessara and Editor"},
        {40, "Starting Tessara"},
        {50, "Starting Tessara"},
        {60, "Loading Additional Tools and Managers"},
        {70, "Loading Wizards and Help Files"},
        {80, "Starting Zelvo Tessara 3.0 - By Orvek"},
        {90, "Please wait...."},
    };
    for (int value = 0; value < 9; ++value) {
        const bool viewsBefore = program.forms->isLoaded<Tessara>();
        tick(program);
        EXPECT_EQ(splash.ui.ProgressBar->value(), steps[value].progress) << "tick " << value;
        EXPECT_EQ(splash.ui.lblStatus->text(), steps[value].status) << "tick " << value;
        EXPECT_TRUE(splash.isVisible()) << "tick " << value;
        if (value < 4) {
            EXPECT_FALSE(program.forms->isLoaded<Tessara>()) << "tick " << value;
            EXPECT_FALSE(program.forms->isLoaded<Zelvo>()) << "tick " << value;
            continue;
        }
        ASSERT_TRUE(program.forms->isLoaded<Tessara>());
        EXPECT_TRUE(program.forms->get<Tessara>().isVisible()) << "tick " << value;
        EXPECT_FALSE(program.forms->get<Zelvo>().isVisible()) << "tick " << value;
        if (!viewsBefore) {
            // The splash stays in front of the view that has just come up.
            QApplication::processEvents();
            EXPECT_EQ(QApplication::activeWindow(), splash.window());
        }
    }
    EXPECT_TRUE(program.prompts.asked.empty());
    EXPECT_TRUE(program.failures.empty());
}

TEST(Splash, LastTickOffersTheAssistantUnlessTurnedOff) {
    struct Case {
        std::optional<QString> appear;
        bool assistant;
    };
    const Case cases[] = {
        {std::nullopt, true}, {"0", true}, {" 0 ", true}, {"1", false}, {"2", false},
    };
    for (const Case& c : cases) {
        const std::string name = c.appear.value_or("<absent>").toStdString();
        TestProgram program;
        setAppear(program, c.appear);
        setMru(program, 1, "/pages/one.html");
        program.event([&] { program.forms->get<frmSplash>().show(); });
        for (int i = 0; i < 10; ++i)
            tick(program);

        EXPECT_FALSE(program.forms->isLoaded<frmSplash>()) << name;
        Tessara& tessara = program.forms->get<Tessara>();
        EXPECT_TRUE(tessara.isVisible()) << name;
        EXPECT_GE(static_cast<MemoryEngine&>(*tessara.ui.txtComp).focusCount(), 1) << name;
        EXPECT_EQ(program.forms->isLoaded<StartUp>(), c.assistant) << name;
        if (c.assistant) {
            EXPECT_TRUE(program.forms->get<StartUp>().isVisible()) << name;
        }
        // Without the assistant nothing captions the recent menus at start.
        EXPECT_EQ(tessara.ui.recent[0]->text(), c.assistant ? "/pages/one.html" : "") << name;
        EXPECT_TRUE(program.prompts.asked.empty()) << name;
        EXPECT_TRUE(program.failures.empty()) << name;
    }
}

TEST(Splash, AnAppearSettingThatIsNoNumberTakesTheFailurePath) {
    for (const QString value : {"yes", ""}) {
        TestProgram program;
        setAppear(program, value);
        program.event([&] { program.forms->get<frmSplash>().show(); });
        frmSplash& splash = program.forms->get<frmSplash>();
        for (int i = 0; i < 10; ++i)
            tick(program);

        ASSERT_EQ(program.prompts.asked.size(), 1u) << value.toStdString();
        EXPECT_EQ(program.prompts.asked[0].text, "Error 01:\r\nStart up Error");
        EXPECT_EQ(program.prompts.asked[0].title, "Assistant: Zelvo");
        EXPECT_EQ(program.prompts.asked[0].style, vbCritical);
        EXPECT_TRUE(program.failures.empty()) << "the tick's own handler took it";
        EXPECT_TRUE(program.forms->get<Tessara>().isVisible());
        EXPECT_FALSE(program.forms->isLoaded<StartUp>());
        ASSERT_TRUE(program.forms->isLoaded<frmSplash>());
        EXPECT_FALSE(splash.isVisible());
        EXPECT_TRUE(splash.ui.Timer_Progress.enabled());
        EXPECT_EQ(splash.ui.lblStatus->text(), "Please wait....");

        for (int i = 0; i < 20; ++i)
            tick(program);
        EXPECT_EQ(program.prompts.asked.size(), 1u) << "ticks past the last do nothing";
        EXPECT_FALSE(splash.isVisible());
        EXPECT_EQ(splash.ui.ProgressBar->value(), 90);
    }
}

TEST(Assistant, LoadFillsTheRecentListAndCaptionsOrHidesBothMenus) {
    struct Case {
        std::vector<std::pair<int, QString>> stored;
        QStringList listed;
        // Per menu index, the caption shown, or empty for a hidden entry.
        QStringList menus;
    };
    const Case cases[] = {
        {{}, {}, {"", "", "", "", ""}},
        {{{0, "/p/zero.html"}, {1, "/p/one.html"}, {3, "/p/three.html"}, {5, "/p/five.html"}},
         {"/p/one.html", "/p/three.html", "/p/five.html"},
         {"/p/one.html", "", "/p/three.html", "", "/p/five.html"}},
    };
    for (const Case& c : cases) {
        Views v;
        for (const auto& [key, value] : c.stored)
            setMru(v.program, key, value);
        StartUp& assistant = v.program.forms->get<StartUp>();

        QStringList listed;
        for (int row = 0; row < assistant.ui.listRecent->count(); ++row)
            listed << assistant.ui.listRecent->item(row)->text();
        EXPECT_EQ(listed, c.listed);
        for (int i = 0; i < 5; ++i) {
            const std::size_t at = std::size_t(i);
            for (QAction* item : {v.tessara.ui.recent[at], v.zelvo.ui.recent[at]}) {
                const QString expected = c.menus[i];
                EXPECT_EQ(item->isVisible(), !expected.isEmpty()) << i;
                if (!expected.isEmpty()) {
                    EXPECT_EQ(item->text(), expected) << i;
                }
            }
        }
        EXPECT_EQ(assistant.caption(), "Zelvo Start Up Assistant");
        EXPECT_TRUE(assistant.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_FALSE(assistant.isVisible()) << "loaded hidden, as every form";
    }
}

TEST(Assistant, TipsComeFromTheTipsFile) {
    struct Case {
        std::optional<QString> file; // nullopt: no tips file
        QString shown;
    };
    const Case cases[] = {
        {std::nullopt, kNotFound},
        {"Only this one\r\n", "Only this one"},
        {"Without a break", "Without a break"},
        {"\r\n", ""},
    };
    for (const Case& c : cases) {
        Views v;
        QFile::remove(tipsFile(v.program));
        if (c.file)
            writeFile(tipsFile(v.program), *c.file);
        StartUp& assistant = v.program.forms->get<StartUp>();
        EXPECT_EQ(assistant.ui.lblTipText->text(), c.shown);
        v.run([&] { assistant.cmdNextTip_Click(); });
        EXPECT_EQ(assistant.ui.lblTipText->text(), c.shown) << "nothing else to pick";
        EXPECT_TRUE(v.program.failures.empty());
    }
}

TEST(Assistant, ShippedTipsAreShownOneAtATime) {
    Views v;
    const QStringList tips = readFile(tipsFile(v.program)).split('\n', Qt::SkipEmptyParts);
    ASSERT_GE(tips.size(), 10);
    StartUp& assistant = v.program.forms->get<StartUp>();
    QSet<QString> seen;
    for (int i = 0; i < 200; ++i) {
        const QString shown = assistant.ui.lblTipText->text();
        EXPECT_TRUE(tips.contains(shown)) << shown.toStdString();
        seen.insert(shown);
        v.run([&] { assistant.cmdNextTip_Click(); });
    }
    EXPECT_GT(seen.size(), 1) << "Next Tip picks at random";
}

TEST(Assistant, DontShowAtStartupEndsTheProgramAndLeavesTheSetting) {
    for (const std::optional<QString>& stored :
         {std::optional<QString>(), std::optional<QString>("0")}) {
        Views v;
        setAppear(v.program, stored);
        StartUp& assistant = v.program.forms->get<StartUp>();
        assistant.show();
        assistant.ui.chkStartup->click();

        ASSERT_EQ(v.program.failures.size(), 1u);
        EXPECT_EQ(v.program.failures[0].number(), RuntimeFailure::TypeMismatch);
        EXPECT_TRUE(v.program.prompts.asked.empty()) << "the box is never reached";
        EXPECT_EQ(appear(v.program), stored.value_or("<absent>"));
        EXPECT_TRUE(v.program.forms->isLoaded<StartUp>());
    }
}

TEST(Assistant, EnableStartUpFlipsTheSettingAndTheMark) {
    struct Case {
        std::optional<QString> stored;
        QString first;
        bool firstMark;
    };
    const Case cases[] = {
        {std::nullopt, "1", false},
        {"0", "1", false},
        {"1", "0", true},
        {"7", "1", false},
    };
    for (const Case& c : cases) {
        Views v;
        setAppear(v.program, c.stored);
        QAction* item = v.tessara.ui.mnuEnableStartUp;
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(item->isChecked()) << "no mark at start, whatever is stored";
        item->trigger();
        EXPECT_EQ(appear(v.program), c.first);
        EXPECT_EQ(item->isChecked(), c.firstMark);
        item->trigger();
        EXPECT_EQ(appear(v.program), c.first == "1" ? "0" : "1");
        EXPECT_EQ(item->isChecked(), !c.firstMark);
        EXPECT_TRUE(v.program.failures.empty());
    }

    Views broken;
    setAppear(broken.program, "on");
    broken.tessara.ui.mnuEnableStartUp->trigger();
    ASSERT_EQ(broken.program.failures.size(), 1u);
    EXPECT_EQ(broken.program.failures[0].number(), RuntimeFailure::TypeMismatch);
    EXPECT_EQ(appear(broken.program), "on");
}

TEST(Assistant, ShowStartUpBringsTheAssistantUpWithTheRecentFiles) {
    Views v;
    setAppear(v.program, "1");
    setMru(v.program, 2, "/p/two.html");
    v.tessara.ui.mnuShowStartUp->trigger();
    ASSERT_TRUE(v.program.forms->isLoaded<StartUp>());
    EXPECT_TRUE(v.program.forms->get<StartUp>().isVisible());
    EXPECT_EQ(v.zelvo.ui.recent[1]->text(), "/p/two.html");
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(Assistant, OpenExistingLoadsThePageAndCaptionsTheVisualView) {
    struct Case {
        bool cancel;
    };
    for (const Case c : {Case{false}, Case{true}}) {
        Views v;
        const QString previous = v.program.scratch("previous.html");
        const QString path = v.file("page.html", "<HTML><BODY><P>opened</P></BODY></HTML>");
        v.tag() = previous;
        v.zelvo.ui.star.setText("*");
        const QString captionBefore = v.tessara.caption();
        v.program.pickers.files = {c.cancel ? std::nullopt : std::optional<QString>(path)};
        StartUp& assistant = v.program.forms->get<StartUp>();
        assistant.ui.btnOpenExist->click();

        ASSERT_EQ(v.program.pickers.asked.size(), 1u);
        EXPECT_EQ(v.program.pickers.asked[0].kind, PickerRequest::Open);
        EXPECT_EQ(v.program.pickers.asked[0].file.defaultExt, "html");
        EXPECT_EQ(v.program.pickers.asked[0].file.filter, document::kFilter);
        EXPECT_TRUE(v.zelvo.ui.comdlg.cancelError);
        EXPECT_FALSE(v.program.forms->isLoaded<StartUp>()) << "unloaded either way";
        EXPECT_TRUE(v.program.failures.empty());
        EXPECT_EQ(v.mru(5), "") << "the recent list is not touched";
        if (c.cancel) {
            EXPECT_EQ(v.tag(), previous);
            EXPECT_EQ(v.tessara.caption(), captionBefore);
            continue;
        }
        EXPECT_TRUE(v.txtComp().documentHTML().contains("<P>opened</P>"));
        EXPECT_EQ(v.tag(), path);
        EXPECT_EQ(v.fileName(), path) << "the name is left in the dialog";
        EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - (*) " + path);
    }
}

TEST(Assistant, ARecentFileOpensOnDoubleClickAndNamesItselfInTheToolTip) {
    Views v;
    const QString path = v.file("recent.html", "<HTML><BODY><P>again</P></BODY></HTML>");
    setMru(v.program, 1, v.program.scratch("gone.html"));
    setMru(v.program, 2, path);
    StartUp& assistant = v.program.forms->get<StartUp>();
    QListWidget& list = *assistant.ui.listRecent;
    ASSERT_EQ(list.count(), 2);

    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:");
    list.setCurrentRow(1);
    v.run([&] { assistant.listRecent_MouseMove(); });
    EXPECT_EQ(list.toolTip(), "Selected File:" + path);

    emit list.itemDoubleClicked(list.item(1));
    EXPECT_TRUE(v.txtComp().documentHTML().contains("<P>again</P>"));
    EXPECT_EQ(v.fileName(), path);
    EXPECT_EQ(v.tag(), path);
    EXPECT_EQ(v.tessara.caption(), "Zelvo Tessara: By Orvek - () " + path);
    EXPECT_EQ(v.zelvo.ui.comdlg.defaultExt, "html");
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());

    // A file that has gone ends the command quietly, before any field is set.
    Views w;
    const QString gone = w.program.scratch("gone.html");
    setMru(w.program, 1, gone);
    w.tag() = "kept";
    StartUp& again = w.program.forms->get<StartUp>();
    again.ui.listRecent->setCurrentRow(0);
    emit again.ui.listRecent->itemDoubleClicked(again.ui.listRecent->item(0));
    EXPECT_EQ(w.tag(), "kept");
    EXPECT_EQ(w.fileName(), "");
    EXPECT_FALSE(w.program.forms->isLoaded<StartUp>());
    EXPECT_TRUE(w.program.failures.empty());
}

TEST(Assistant, TheOtherWaysToBeginCloseTheAssistantAndLeaveThePage) {
    for (const char* button : {"btnBlank", "btnTemplates", "btnCrash", "btnHTMLTutor"}) {
        Views v;
        v.txtComp().setDocumentHTML("<P>as it was</P>");
        const QString page = v.txtComp().documentHTML();
        StartUp& assistant = v.program.forms->get<StartUp>();
        assistant.show();
        auto* target = assistant.window()->findChild<QPushButton*>(button);
        ASSERT_NE(target, nullptr) << button;
        target->click();
        EXPECT_FALSE(v.program.forms->isLoaded<StartUp>()) << button;
        EXPECT_EQ(v.txtComp().documentHTML(), page) << button;
        EXPECT_TRUE(v.program.failures.empty()) << button;
    }
}

TEST(Assistant, StartUpHelpClosesTheAssistantAndShowsItsPage) {
    Views v;
    StartUp& assistant = v.program.forms->get<StartUp>();
    assistant.show();
    assistant.ui.btnStartUpHelp->click();

    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
    ASSERT_TRUE(v.program.forms->isLoaded<frmHelp>());
    frmHelp& help = v.program.forms->get<frmHelp>();
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.caption(), "Specific Help: Zelvo Tessara");
    const QString page = readFile(v.program.folder.path("misc/suwiz.zhp"));
    ASSERT_FALSE(page.isEmpty());
    EXPECT_EQ(help.ui.txtHelp.text(), page);
    EXPECT_TRUE(help.ui.txtHelpView->isReadOnly());
    EXPECT_TRUE(v.program.failures.empty());
}

TEST(Help, AMissingPageShowsNothingAndABorrowedCaptionIsGivenBack) {
    Views v;
    v.run([&] { showHelpPage(*v.program.forms, "nosuchpage.zhp"); });
    EXPECT_FALSE(v.program.forms->isLoaded<frmHelp>() &&
                 v.program.forms->get<frmHelp>().isVisible());
    EXPECT_TRUE(v.program.prompts.asked.empty());
    EXPECT_TRUE(v.program.failures.empty());

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
}

TEST(Assistant, TheMainWindowsCloseTheSplashAndTheAssistantWithThem) {
    Views v;
    v.program.forms->get<frmSplash>();
    v.program.forms->get<StartUp>();
    unloadDialogs(*v.program.forms);
    EXPECT_FALSE(v.program.forms->isLoaded<frmSplash>());
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
}
