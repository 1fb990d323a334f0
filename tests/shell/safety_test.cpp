#include "views.h"

#include "help/frmmoretemp.h"
#include "platform/engine/memoryengine.h"
#include "platform/filelistbox.h"
#include "platform/textlineview.h"
#include "safety/crashrecover.h"
#include "safety/restore.h"
#include "safety/tempclip.h"
#include "safety/templates.h"
#include "shell/startup.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

QString listed(const FileListBox& list) {
    QStringList names;
    for (int row = 0; row < list.count(); ++row)
        names << list.item(row)->text();
    return names.join('|');
}

void choose(FileListBox& list, const QString& name) {
    const auto rows = list.findItems(name, Qt::MatchExactly);
    list.setCurrentItem(rows.isEmpty() ? nullptr : rows.front());
}

} // namespace

TEST(RestorePoints, SlotsLastTheRunNamedPointsLastOnDisk) {
    Views v;
    v.area().setText("one");
    v.zelvo.ui.mnuRestore->trigger();
    restore& r = v.program.forms->get<restore>();
    const auto title = [&] { return r.ui.lblTitle->text(); };
    EXPECT_TRUE(r.isVisible() && r.ui.txtRestore.text() == "one");
    EXPECT_EQ(title(), "Current Editor Contents");

    // Slot 3 twice keeps the second; a name that is no slot does nothing.
    r.ui.cmbRestore->setCurrentText("Restore 3");
    r.ui.btnCreate->click();
    r.ui.txtRestore.setText("two");
    r.ui.btnCreate->click();
    EXPECT_EQ(title(), "Restore Point 3 Set");
    r.ui.cmbRestore->setCurrentText("Restore 9");
    r.ui.txtRestore.setText("nine");
    r.ui.btnCreate->click();
    EXPECT_EQ(title(), "Restore Point 3 Set");
    EXPECT_TRUE(r.ui.chkStatus[2]->isChecked() && !r.ui.chkStatus[0]->isChecked());

    // Closed and opened from the other view: the display is the page again, the
    // slots are kept.
    r.ui.CancelButton->click();
    v.txtComp().setDocumentHTML("<HTML><BODY>page</BODY></HTML>");
    v.tessara.ui.mnuRestore->trigger();
    EXPECT_TRUE(r.ui.txtRestore.text().contains("page"));
    r.ui.btnRestore[1]->click();
    EXPECT_EQ(title() + "|" + r.ui.txtRestore.text(), "Restore Point 2|");
    r.ui.btnRestore[2]->click();
    EXPECT_EQ(title() + "|" + r.ui.txtRestore.text(), "Restore Point 3|two");

    // No keeps everything and comes back; Yes writes both views.
    v.program.prompts.answers = {vbNo, vbYes};
    r.ui.OKButton->click();
    EXPECT_TRUE(r.isVisible() && v.area().text() == "one");
    r.ui.OKButton->click();
    EXPECT_TRUE(v.area().text() == "two" && v.txtComp().documentHTML().contains("two"));
    EXPECT_FALSE(r.isVisible());
    EXPECT_EQ(question(v.program, 1),
              "Using Restore Point is going to take your page back to the last time Restore "
              "Point was created. Proceed?|Assistant: Zelvo|36");
}

TEST(RestorePoints, NamedPointsAndTheirFailures) {
    Views v;
    v.zelvo.ui.mnuRestore->trigger();
    restore& r = v.program.forms->get<restore>();
    const QString kept = "{\\rtf} caf\u00e9\r\n\tend";
    r.ui.txtRestore.setText(kept);
    r.ui.txtPRestoreName.setText("before");
    QTest::keyClick(r.ui.txtPRestoreNameView, Qt::Key_Return);
    EXPECT_EQ(listed(*r.ui.File1), "before.rpw");
    EXPECT_TRUE(readFile(v.program.folder.path("crash/before.rpw")).startsWith("{\\rtf1\\ansi"));

    r.ui.txtRestore.setText("");
    choose(*r.ui.File1, "before.rpw");
    r.ui.btnLoad->click();
    EXPECT_EQ(r.ui.txtRestore.text(), kept);
    EXPECT_EQ(r.ui.lblTitle->text(), "Contents of loaded restore point");
    r.ui.btnRemove->click();
    EXPECT_EQ(listed(*r.ui.File1), "");

    // Nothing chosen: both fail with their box and the window comes back.
    r.ui.btnLoad->click();
    r.ui.btnRemove->click();
    EXPECT_EQ(v.asked(), QStringList({"An error occurred when trying to load document.",
                                      "An error occurred when trying to remove document."}));
    EXPECT_TRUE(r.isVisible() && v.program.prompts.asked[0].style == vbCritical);

    // Set is unprotected.
    r.ui.txtPRestoreName.setText("no/such");
    v.run([&] { r.ui.btnSet->click(); });
    EXPECT_EQ(failure(v.program), RuntimeFailure::PathNotFound);
}

// Configure from the source view: the visual view comes to the front whatever the
// entries, then the timer takes the name and the interval in seconds.
TEST(CrashRecovery, ConfigureSetsTheTimerOrSaysWhyNot) {
    const struct {
        QString name, seconds;
        int interval;
        bool enabled, unloaded;
        QString tag, said;
    } cases[] = {
        {"doc", "", 10000, true, true, "doc", ""},
        {"doc", "5", 5000, true, true, "doc", ""},
        {"doc", "1.5", 1500, true, true, "doc", ""},
        {"doc", "66", 5000, false, true, "doc",
         "Request could not be processed...|Assistant: Zelvo|16"},
        {"doc", "soon", 5000, false, true, "",
         "Request could not be processed...|Assistant: Zelvo|16"},
        {"", "5", 5000, false, false, "", "Invalid File Name||0"},
    };
    for (const auto& c : cases) {
        Views v;
        v.zelvo.show();
        v.zelvo.ui.mnuCrashWizard->trigger();
        crashRecover& w = v.program.forms->get<crashRecover>();
        w.ui.txtDocName.setText(c.name);
        w.ui.txtTimerValue.setText(c.seconds);
        v.run([&] { w.ui.btnConfigure->click(); });
        const Timer& timer = v.tessara.ui.TimeCrashSave;
        const std::string what = c.seconds.toStdString();
        EXPECT_EQ(timer.interval(), c.interval) << what;
        EXPECT_EQ(timer.enabled(), c.enabled) << what;
        EXPECT_EQ(timer.tag, c.tag) << what;
        EXPECT_EQ(question(v.program), c.said) << what;
        EXPECT_EQ(!v.program.forms->isLoaded<crashRecover>(), c.unloaded) << what;
        EXPECT_TRUE(v.tessara.isVisible() && !v.zelvo.isVisible() && !w.isVisible()) << what;
    }
}

// Each tick writes the whole document by the view in front; a tick that cannot
// write stops the timer without a word, and the wizard will not open without its
// folder.
TEST(CrashRecovery, TicksSaveTheViewInFrontUntilTheFolderGoes) {
    Views v;
    Timer& timer = v.tessara.ui.TimeCrashSave;
    timer.tag = "doc";
    timer.setEnabled(true);
    const QString saved = v.program.folder.root() + "/crash/doc.crw";
    v.txtComp().setDocumentHTML("<HTML><BODY>page</BODY></HTML>");
    v.tessara.show();
    timer.fire();
    EXPECT_TRUE(readFile(saved).contains("<BODY>page</BODY>"));
    v.tessara.hide();
    v.area().setText("caf\u00e9");
    timer.fire();
    QFile file(saved);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "caf\xe9\r\n");

    QDir(v.program.folder.root() + "/crash").removeRecursively();
    timer.fire();
    EXPECT_FALSE(timer.enabled());
    v.tessara.ui.mnuCrashRecover->trigger();
    EXPECT_FALSE(v.program.forms->isLoaded<crashRecover>());
    EXPECT_EQ(question(v.program), "Error 04:\r\nUnable to perform requested action. Crash folder "
                                   "might have been removed or moved|Assistant: Zelvo|16");
    EXPECT_TRUE(v.program.failures.empty());
}

// Disable starts the timer with what it had; Load brings a chosen save into the
// visual view, from the assistant's button too; with none chosen it fails.
TEST(CrashRecovery, DisableKeepsSavingAndLoadBringsASaveBack) {
    Views v;
    writeFile(v.program.folder.root() + "/crash/doc.crw", "<HTML><BODY>saved</BODY></HTML>");
    v.tessara.ui.mnuCrashRecover->trigger();
    v.program.forms->get<crashRecover>().ui.btnDisableCRW->click();
    EXPECT_TRUE(v.tessara.ui.TimeCrashSave.enabled());
    v.tessara.ui.TimeCrashSave.fire();
    EXPECT_TRUE(QFile::exists(v.program.folder.root() + "/crash/.crw"));

    v.program.forms->get<StartUp>().ui.btnCrash->click();
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
    crashRecover& w = v.program.forms->get<crashRecover>();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(listed(*w.ui.FileCrash), ".crw|doc.crw");
    w.ui.btnLoad->click();
    choose(*v.program.forms->get<crashRecover>().ui.FileCrash, "doc.crw");
    v.program.forms->get<crashRecover>().ui.btnLoad->click();
    EXPECT_TRUE(v.txtComp().documentHTML().contains("saved"));
    EXPECT_TRUE(v.tessara.isVisible());
    EXPECT_FALSE(v.program.forms->isLoaded<crashRecover>());
    EXPECT_EQ(
        v.asked(),
        QStringList({"Crash Recovery Wizard has been disabled successfully.",
                     "Are you sure you want to load this document?",
                     "Error 05:\r\nAn error occured when trying to perform requested operation",
                     "Are you sure you want to load this document?"}));
}

// Snippets from the source text, whole with their breaks; Paste takes the display
// box as it stands, which Remove and Clear leave alone; a drop makes the display's
// selection a row.
TEST(TemporaryClipboard, CollectsPastesAndKeepsTheDisplay) {
    Views v;
    v.area().setText("a\r\nb c");
    v.area().setSelLength(4);
    v.zelvo.ui.mnuCopyToTemp->trigger();
    v.zelvo.ui.mnuCopyToTemp->trigger();
    v.area().setSelLength(0);
    v.zelvo.ui.mnuCopyToTemp->trigger();
    TempClip& clip = v.program.forms->get<TempClip>();
    EXPECT_FALSE(clip.isVisible());
    ASSERT_EQ(clip.ui.listClip->count(), 2);
    clip.ui.listClip->setCurrentRow(1);
    clip.listClip_Click();
    EXPECT_EQ(clip.ui.txtClip.text(), "a\r\nb");

    clip.ui.txtClip.setText("hello world");
    clip.ui.txtClip.setSelStart(6);
    clip.ui.txtClip.setSelLength(5);
    QMimeData data;
    data.setText("anything");
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(clip.ui.listClip->viewport(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(clip.ui.listClip->viewport(), &drop);
    EXPECT_EQ(clip.itemText(2), "world");

    clip.ui.btnRemove->click();
    EXPECT_EQ(clip.ui.listClip->count(), 2);
    v.program.prompts.answers = {vbNo, vbYes};
    clip.ui.btnClear->click();
    EXPECT_EQ(clip.ui.listClip->count(), 2);
    clip.ui.btnClear->click();
    EXPECT_EQ(clip.ui.listClip->count(), 0);
    clip.ui.btnRemove->click();
    v.area().setSelStart(0);
    clip.ui.btnPaste->click();
    EXPECT_EQ(v.area().text(), "hello worlda\r\nb c");
    EXPECT_EQ(v.asked(),
              QStringList({"This will clear Temporary Clipboard. Proceed?",
                           "This will clear Temporary Clipboard. Proceed?", "No item selected"}));
}

// Templates are written as "Temp" and read as "temp", listed by the name cut out of
// the file's name whatever that is; OK asks and loads, and its No ends in the error
// box; Create and Import say how they ended.
TEST(Templates, CreateListChooseAndImport) {
    Views v;
    const QString folder = v.program.folder.root() + "/templates/";
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    writeFile(folder + "mypage.html", "x");
    writeFile(folder + "a.htm", "x");
    v.txtComp().setDocumentHTML("<HTML><BODY>designed</BODY></HTML>");
    v.program.prompts.inputs = {"My Page", "   "};
    v.zelvo.ui.mnuCreateTemplate->trigger();
    v.tessara.ui.mnuConvTemplate->trigger();
    EXPECT_TRUE(readFile(folder + "TempMyPage.html").contains("designed"));

    v.zelvo.ui.mnuTemplates->trigger();
    templates& manager = v.program.forms->get<templates>();
    QStringList names;
    for (int row = 0; row < manager.ui.listTemplates->count(); ++row)
        names << manager.ui.listTemplates->item(row)->text();
    EXPECT_EQ(names.join('|').toStdString(), "a.htm|ge|MyPage");
    EXPECT_TRUE(manager.isVisible() && manager.ui.PrevTemplate->browseMode());
    manager.ui.listTemplates->setCurrentRow(2);
    EXPECT_TRUE(manager.ui.PrevTemplate->documentHTML().contains("designed"));

    v.txtComp().setDocumentHTML("<HTML><BODY>mine</BODY></HTML>");
    v.program.prompts.answers = {vbNo};
    manager.ui.OKButton->click();
    EXPECT_TRUE(v.txtComp().documentHTML().contains("mine"));
    v.program.prompts.answers = {vbYes};
    manager.ui.OKButton->click();
    EXPECT_TRUE(v.txtComp().documentHTML().contains("designed") && v.tessara.isVisible());

    // Import: Cancel in the file dialog fails; a file with no name given stays in
    // the page and makes no template.
    const QString page = v.file("found.html", "<HTML><BODY>found</BODY></HTML>");
    v.program.pickers.files = {std::nullopt, page, page};
    v.program.prompts.inputs = {"", "Found"};
    for (int i = 0; i < 3; ++i)
        v.tessara.ui.mnuImportTemplate->trigger();
    EXPECT_TRUE(v.txtComp().documentHTML().contains("found"));
    EXPECT_EQ(QDir(folder).entryList(QDir::Files).join('|').toStdString(),
              "a.htm|mypage.html|TempFound.html|TempMyPage.html");

    v.program.prompts.inputs = {"no/such"};
    v.zelvo.ui.mnuCreateTemplate->trigger();
    QStringList said;
    for (const auto& q : v.program.prompts.asked)
        if (!q.text.startsWith("Enter the name"))
            said << q.title + ": " + q.text.left(24);
    EXPECT_EQ(said.join('\n').toStdString(),
              "Template Manager: Template Created!\n"
              "Assistant: Zelvo: Are you sure you want to\n"
              "Error Loading Template: Error loading template. \n"
              "Assistant: Zelvo: Are you sure you want to\n"
              "Assistant: Zelvo: An error occurred while \n"
              "Template Manager: Template Imported!\n"
              "Unable to create template!: An error occured while c");
}

TEST(Templates, TheAssistantAndMoreTemplatesOpenTheirWindows) {
    Views v;
    v.program.forms->get<StartUp>().ui.btnTemplates->click();
    EXPECT_FALSE(v.program.forms->isLoaded<StartUp>());
    EXPECT_TRUE(v.program.forms->get<templates>().isVisible());
    EXPECT_EQ(v.program.forms->get<templates>().ui.listTemplates->count(), 4);
    v.zelvo.ui.mnuMoreTemplates->trigger();
    frmMoreTemp& browser = v.program.forms->get<frmMoreTemp>();
    EXPECT_EQ(browser.caption(), "Download 300+ professional templates FREE:  Zelvo Tessara 3.0");
    EXPECT_TRUE(browser.isVisible() && browser.ui.cmbLessons->isHidden());
    EXPECT_TRUE(static_cast<MemoryEngine&>(*browser.ui.theWeb)
                    .loadedURL()
                    .endsWith("/misc/moretemplates.html"));
}
