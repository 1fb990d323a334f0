#include "builders/builderkit.h"
#include "source/areafixture.h"

#include "builders/frmrow.h"
#include "builders/table.h"
#include "source/inshtml.h"
#include "source/taglist.h"

#include "platform/backcolor.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>

using namespace zt;
using namespace zt::test;

namespace {

// The source view shown, with "a x b" in its text and "x" selected.
struct TagListView : BuilderViews {
    TagListView() {
        zelvo.show();
        area().setText("a x b");
        selectInArea("x");
    }
    QListWidget& list() { return *zelvo.ui.lstAllTags; }
    QStringList lines() { return rowsOf(&list()); }
    QString selected() { return list().currentItem() ? list().currentItem()->text() : "(none)"; }
    // The user's double click on the first line that reads line.
    void doubleClick(const QString& line) {
        const int row = int(lines().indexOf(line));
        ASSERT_GE(row, 0) << line.toStdString();
        list().scrollToItem(list().item(row));
        const QPoint at = list().visualItemRect(list().item(row)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, at);
    }
    bool areaHasFocus() { return zelvo.window()->focusWidget() == zelvo.ui.areaView; }
    void library(const QString& name, const QByteArray& bytes) {
        QFile file(program.folder.path("misc/" + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

} // namespace

TEST(TagList, SearchSelectsTheFirstLineThatHoldsTheTextHeadingsIncluded) {
    TagListView v;
    const std::vector<std::pair<QString, QString>> cases{
        {"tab", "Tables"}, {"tabl", "Tables"},       {"<tab", "<table>"}, {"<B", "<body>"},
        {"zzz", "<body>"}, {"Search Tag", "<body>"}, {"", "Basic Tags"},  {"meta", "Meta Info"}};
    for (const auto& [typed, line] : cases) {
        v.zelvo.ui.txtSearchTag.setText(typed);
        EXPECT_EQ(v.selected(), line) << typed.toStdString();
    }
    EXPECT_EQ(v.zelvo.ui.StatusBar1->panelText(1), "Meta Info");
    EXPECT_EQ(v.list().toolTip(), "Meta Info");

    // Entering the box empties it, which selects the first line; leaving it puts its
    // prompt back.
    v.zelvo.txtSearchTag_GotFocus();
    EXPECT_EQ(v.selected(), "Basic Tags");
    v.zelvo.txtSearchTag_LostFocus();
    EXPECT_EQ(v.zelvo.ui.txtSearchTag.text(), "Search Tag");
}

TEST(TagList, DoubleClickWritesTheTagRoundTheSelectionOrOpensItsDialog) {
    TagListView v;
    // Tags with a dialog of their own, headings and blanks write nothing.
    const QStringList quiet{"Basic Tags", "",         "<img>",    "<font>",     "<a>",
                            "<textarea>", "<button>", "<select>", "<fieldset>", "<ul>",
                            "<ol>",       "<table>",  "<tr>"};
    const std::vector<std::pair<QString, QString>> cases{{"<b>", "a <b>x</b>| b"},
                                                         {"<hr>", "a <hr>x| b"},
                                                         {"<input>", "a <input>x| b"},
                                                         {"<!DOCTYPE>", "a <!DOCTYPE>x| b"},
                                                         {"<!--...-->", "a <!--x-->| b"}};
    std::vector<std::pair<QString, QString>> all = cases;
    for (const QString& line : quiet)
        all.push_back({line, "a |x b"});
    for (const auto& [line, after] : all) {
        v.area().setText("a x b");
        v.selectInArea("x");
        v.zelvo.ui.areaView->clearFocus();
        v.doubleClick(line);
        QString shown = v.area().text();
        EXPECT_EQ(shown.insert(v.area().selStart(), '|'), after) << line.toStdString();
        EXPECT_TRUE(v.areaHasFocus()) << line.toStdString();
    }
    EXPECT_EQ(v.program.forms->get<table>().ui.compOrEdit.text(), "edit");
    EXPECT_TRUE(v.program.forms->get<table>().isVisible() &&
                v.program.forms->get<frmrow>().isVisible());

    // An empty selection leaves the caret behind the closing tag; twice nests.
    v.area().setText("");
    v.doubleClick("<i>");
    v.doubleClick("<i>");
    EXPECT_EQ(v.area().text(), "<i></i><i></i>");
    EXPECT_EQ(v.area().selStart(), 14);
}

TEST(QuickReference, LibrariesFillTheListAndTheColoursDecideTheDoubleClick) {
    TagListView v;
    const auto colours = [&] {
        return std::pair{backColor(*v.zelvo.ui.btnQBHtml), backColor(*v.zelvo.ui.btnQBCss)};
    };
    const std::pair html{syscolour::k3DLight, syscolour::k3DHighlight};
    const std::pair css{syscolour::k3DHighlight, syscolour::k3DLight};
    EXPECT_EQ(std::pair(colours().first, backColor(*v.zelvo.ui.btnQBForms)),
              std::pair(syscolour::k3DLight, syscolour::kTitleBarText));

    v.library("cssRef.lib", "Colors\r\n\r\ncolor: red;\r\n:hover\r\n1em\r\nmargin: 0;");
    v.zelvo.ui.btnQBCss->click();
    EXPECT_EQ(v.lines(), QStringList({"Colors", "", "color: red;", ":hover", "1em", "margin: 0;"}));
    EXPECT_EQ(colours(), css);
    EXPECT_TRUE(v.areaHasFocus());
    for (const char* line : {"Colors", "1em", "", "color: red;", ":hover"})
        v.doubleClick(line);
    EXPECT_EQ(v.area().text(), "a color: red;:hover b") << "a heading, a digit, a blank: nothing";

    // A library that is missing or too long leaves the list, says so, and still
    // turns the colours, so a tag line now goes the CSS way: nowhere.
    const QString refused = "Unable to perform requested action. Library file seems to have "
                            "been moved or renamed|Assistant: Zelvo|16";
    for (const qsizetype size : {32767, 32768, -1}) {
        QFile::remove(v.program.folder.path("misc/cssRef.lib"));
        if (size >= 0)
            v.library("cssRef.lib", QByteArray(size - 6, 'a') + "\r\nb:\r\n");
        v.zelvo.ui.btnQBHtml->click();
        EXPECT_EQ(colours(), html);
        EXPECT_EQ(v.lines().mid(0, 144), taglist::designLines());
        v.program.prompts.asked.clear();
        v.zelvo.ui.btnQBCss->click();
        EXPECT_EQ(colours(), css);
        EXPECT_EQ(question(v.program), size == 32767 ? "" : refused) << size;
        EXPECT_EQ(v.lines().size(), size == 32767 ? 2 : 200) << size;
    }
    v.area().setText("");
    v.doubleClick("<b>");
    EXPECT_EQ(v.area().text(), "");
}

TEST(QuickReference, FormAndTableButtonsPopUpTheirMenus) {
    TagListView v;
    for (auto [button, menu] : {std::pair{v.zelvo.ui.btnQBForms, v.zelvo.ui.mnuForm},
                                std::pair{v.zelvo.ui.btnQBTables, v.zelvo.ui.mnutable}}) {
        button->click();
        EXPECT_EQ(QApplication::activePopupWidget(), menu->menu());
        EXPECT_TRUE(v.areaHasFocus());
        menu->menu()->close();
    }
}

TEST(InsertHtml, MarkupTypedInTheDialogGoesIntoThePageAtTheCaret) {
    BuilderViews v;
    v.run([&] { v.tessara.ui.mnuHTML->trigger(); });
    insHTML& dialog = v.program.forms->get<insHTML>();
    ASSERT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.caption(), "Insert HTML Into Tessara : Zelvo");
    dialog.ui.theTags.setText("<b>new</b>");
    v.run([&] { dialog.ui.OKButton->click(); });
    v.settle();
    EXPECT_FALSE(v.loaded<insHTML>());
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), "<b>new</b>one two three");

    v.run([&] { v.tessara.ui.mnuHTML->trigger(); });
    v.program.forms->get<insHTML>().ui.theTags.setText("<i>not this</i>");
    v.run([&] { v.program.forms->get<insHTML>().ui.CancelButton->click(); });
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());
}
