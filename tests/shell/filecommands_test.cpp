#include "views.h"

#include <QAction>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// The question a click asks, answered No, as text|title|kind.
QString firstQuestion(Views& v, QAction* item) {
    v.program.prompts.answers = {vbNo};
    item->trigger();
    return question(v.program);
}

} // namespace

TEST(SourceFile, NewOnDirtyAnsweredYesSavesUnderANewNameAndKeepsTheText) {
    Views v;
    const QString old = v.file("old.html", "old");
    const QString chosen = v.program.scratch("new.html");
    v.load(old, "edited");
    const QString caption = v.zelvo.caption();
    v.program.prompts.answers = {vbYes};
    v.program.pickers.files = {chosen};
    v.zelvo.ui.mnuew->trigger();

    // The path was emptied first, so Save asked for a name though there was one.
    ASSERT_EQ(v.program.pickers.asked.size(), 1u);
    EXPECT_EQ(v.program.pickers.asked[0].kind, PickerRequest::Save);
    EXPECT_EQ(v.area().text(), "edited");
    EXPECT_EQ(readFile(chosen) + readFile(old), "edited\r\nold");
    EXPECT_EQ(v.tag(), chosen);
    EXPECT_EQ(v.star() + v.fileName(), "");
    // Save through the dialog pushes the recent list, which fails before the caption
    // is rebuilt: it still shows the state before the save.
    EXPECT_EQ(v.mru(5), chosen);
    EXPECT_EQ(v.zelvo.caption(), caption);
    EXPECT_TRUE(v.program.failures.empty());
}

// Save As writes the old path and records the new one; untitled, it writes nothing.
TEST(SourceFile, SaveAsWritesTheOldPathAndRecordsTheNewOne) {
    for (const bool visual : {false, true})
        for (const bool titled : {true, false}) {
            SCOPED_TRACE(std::string(visual ? "visual" : "source") + (titled ? ", titled" : ""));
            Views v;
            const QString old = v.file("old.html", "old");
            const QString chosen = v.program.scratch("chosen.html");
            v.load(titled ? old : "", "<P>current</P>");
            const Form& view = visual ? static_cast<Form&>(v.tessara) : v.zelvo;
            const QString captionBefore = view.caption();
            v.program.pickers.files = {chosen};
            v.run([&] { visual ? v.tessara.mnuSaveAs() : v.zelvo.mnuSaveAs(); });

            EXPECT_FALSE(QFile::exists(chosen));
            EXPECT_EQ(v.fileName(), "");
            EXPECT_TRUE(v.program.failures.empty());
            EXPECT_EQ(v.tag(), titled ? chosen : "");
            const QString written = readFile(old);
            EXPECT_EQ(written.contains("<P>current</P>") && written.endsWith("\r\n"), titled);
            EXPECT_EQ(view.caption().endsWith(") " + chosen), titled);
            if (!titled) {
                EXPECT_EQ(view.caption(), captionBefore);
            }
            // Only the source view's Save As clears the mark.
            EXPECT_EQ(v.star(), visual || !titled ? "*" : "");
        }
}

TEST(SourceFile, OpenThenSaveWritesTheOpenedPathAndGrowsByOneBreakEachCycle) {
    Views v;
    const QString path = v.file("page.html", "<P>a</P>");
    v.tag() = v.program.scratch("previous.html");
    v.program.pickers.files = {path};
    v.run([&] { v.zelvo.mnuOpen(); });

    EXPECT_EQ(v.area().text(), "<P>a</P>");
    EXPECT_EQ(v.tag(), path);
    EXPECT_EQ(v.star(), "*") << "the load itself marks the document";
    EXPECT_TRUE(v.zelvo.caption().endsWith("previous.html")) << "caption still shows the old name";
    EXPECT_EQ(v.fileName(), path) << "the push failed before the name was cleared";
    EXPECT_EQ(v.program.pickers.asked[0].file.defaultExt, "*.html");

    for (int cycle = 1; cycle <= 3; ++cycle) {
        v.run([&] { v.zelvo.mnuSave(); });
        EXPECT_EQ(readFile(path), "<P>a</P>" + QString("\r\n").repeated(cycle));
        v.area().setText(readFile(path));
    }
    EXPECT_EQ(v.program.pickers.asked.size(), 1u) << "Save with a path asks nothing";
}

TEST(SourceFile, RecentLoadsButSaveStillGoesToThePreviousPath) {
    Views v;
    const QString previous = v.file("previous.html", "x");
    const QString other = v.file("other.html", "<P>other</P>");
    v.tag() = previous;
    v.zelvo.ui.recent[2]->setText(other);
    v.run([&] { v.zelvo.recent_Click(2); });
    EXPECT_EQ(v.area().text(), "<P>other</P>");
    EXPECT_EQ(v.fileName(), other);

    v.run([&] { v.zelvo.mnuSave(); });
    EXPECT_EQ(readFile(previous) + readFile(other), "<P>other</P>\r\n<P>other</P>");
}

TEST(SourceFile, RecentOnADirtyDocumentAnsweredYesSavesAndOpensNothing) {
    for (const bool visual : {false, true}) {
        Views v;
        const QString path = v.file("doc.html", "");
        const QString other = v.file("other.html", "<P>other</P>");
        v.load(path, "<P>mine</P>");
        (visual ? v.tessara.ui.recent : v.zelvo.ui.recent)[0]->setText(other);
        v.program.prompts.answers = {vbYes};
        v.run([&] { visual ? v.tessara.recent_Click(0) : v.zelvo.recent_Click(0); });

        EXPECT_EQ(v.asked(),
                  QStringList{"File not saved. Would you like to save your file first?"});
        EXPECT_TRUE(readFile(path).contains("<P>mine</P>"));
        EXPECT_EQ(v.tag(), path);
        EXPECT_FALSE(v.area().text().contains("other"));
    }
}

TEST(SourceFile, InsertFileAddsABreakAfterEveryLine) {
    Views v;
    const QString path = v.file("part.txt", "one\r\ntwo\nthree");
    v.area().setText("[sel]rest");
    v.area().setSelLength(5);
    v.program.pickers.files = {path};
    v.run([&] { v.zelvo.mnuInsFile(); });
    EXPECT_EQ(v.area().text(), "one\r\ntwo\r\nthree\r\nrest");
    EXPECT_EQ(v.fileName(), path);

    // Cancel has no path of its own: once a command has set CancelError, it ends
    // the program.
    v.zelvo.ui.comdlg.cancelError = true;
    v.program.pickers.files = {std::nullopt};
    EXPECT_FALSE(v.run([&] { v.zelvo.mnuInsFile(); }));
    EXPECT_EQ(failure(v.program), RuntimeFailure::Cancel);
}

TEST(SourceFile, RecentKeysAfterOpensFromEachView) {
    Views v;
    const QString a = v.file("a.html", "<P>a</P>");
    const QString b = v.file("b.html", "<P>b</P>");
    const auto keys = [&] {
        QStringList out;
        for (int key = 0; key <= 5; ++key)
            out << QFileInfo(v.mru(key)).baseName();
        return out.join(',');
    };

    // The source view shifts keys 1-5 down into 0-4 and adds the newest in 5, with
    // no test for a name it already holds, and never captions an entry.
    v.program.pickers.files = {a, a};
    v.run([&] { v.zelvo.mnuOpen(); });
    v.run([&] { v.zelvo.mnuOpen(); });
    EXPECT_EQ(keys(), ",,,,a,a");
    EXPECT_FALSE(v.zelvo.ui.recent[2]->isVisible() || v.tessara.ui.recent[2]->isVisible());
    EXPECT_EQ(v.zelvo.ui.recent[4]->text(), "");

    // The visual view keeps keys 0-4, newest in 4, and skips a name it holds; key 5
    // is the source view's alone.
    v.zelvo.ui.star.setText("");
    v.program.pickers.files = {b, b};
    v.run([&] { v.tessara.mnuOpen(); });
    v.run([&] { v.tessara.mnuOpen(); });
    EXPECT_EQ(keys(), ",,,a,b,a");
    for (const auto* recent : {&v.zelvo.ui.recent, &v.tessara.ui.recent}) {
        EXPECT_EQ((*recent)[4]->text() + (*recent)[3]->text(), b + a);
        EXPECT_TRUE((*recent)[3]->isVisible() && !(*recent)[2]->isVisible());
    }
    EXPECT_TRUE(v.program.failures.empty());
}

// The texts the program shows, pinned once, each reached as the user reaches it.
TEST(SourceFile, TheProgramsOwnTextsStandAsDesigned) {
    const struct {
        const char* what;
        std::function<QString(Views&)> shown;
        QString want;
    } cases[] = {
        {"New on an unsaved page answered No: question, blank page, caption",
         [](Views& v) {
             v.load("/some/page.html", "edited");
             const QString asked = firstQuestion(v, v.zelvo.ui.mnuew);
             return asked + '\n' + v.area().text() + '\n' + v.zelvo.caption() + v.star() + v.tag();
         },
         "File not saved. Save file now?|Assistant: Zelvo|" +
             QString::number(vbYesNo | vbQuestion) +
             "\n<HTML>\r\n<HEAD>\r\n<META NAME=\"GENERATOR\" Content=\"Zelvo Tessara\">\r\n"
             "<TITLE></TITLE>\r\n</HEAD>\r\n<BODY>\r\n<P>&nbsp;</P>\r\n</BODY>\r\n</HTML>\n"
             "Zelvo Tessara: By Orvek - () Untitled"},
        {"the source view's first caption", [](Views& v) { return v.zelvo.caption(); },
         "Untitled(): Zelvo - By Orvek"},
        {"the visual view's New question, title and kind",
         [](Views& v) { return firstQuestion(v, v.tessara.ui.mnuNew); },
         "Are you sure you want to close existing document?|Assistant: Zelvo|" +
             QString::number(vbYesNo | vbQuestion | vbDefaultButton2)},
        {"the file filter",
         [](Views& v) {
             v.program.pickers.files = {std::nullopt};
             v.zelvo.ui.mnuSave->trigger();
             return v.program.pickers.asked.at(0).file.filter;
         },
         "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm"},
        {"Exit's question, title and kind, No the default",
         [](Views& v) { return firstQuestion(v, v.tessara.ui.mnuExit); },
         "Are you sure you want to exit?|Confirm Exit: Zelvo Tessara|" +
             QString::number(vbYesNo | vbQuestion | vbDefaultButton2)},
    };
    for (const auto& c : cases) {
        Views v;
        EXPECT_EQ(c.shown(v).toStdString(), c.want.toStdString()) << c.what;
    }
}
