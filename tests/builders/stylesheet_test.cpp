#include "builderkit.h"

#include "help/frmhelp.h"
#include "pagehelpers/stylesheet.h"
#include "pagehelpers/stylesheetwiz.h"

#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

void click(BuilderViews& v, QAbstractButton* button) {
    v.run([&] { button->click(); });
    v.settle();
}

// The creator opened from a view and taken to its second step with rules pasted in.
styleSheetWiz& atStepTwo(BuilderViews& v, bool external, bool fromSource = false) {
    v.run([&] { fromSource ? v.zelvo.mnuStyleSheet() : v.tessara.mnuStyleSheet(); });
    click(v, v.program.forms->get<styleSheet>().ui.btnNext);
    styleSheetWiz& w = v.program.forms->get<styleSheetWiz>();
    w.ui.txtCode.setText("b { }");
    (external ? w.ui.radExt : w.ui.radInt)->setChecked(true);
    return w;
}

} // namespace

// The first step runs the program's style page; its picker has its own spelling;
// Back and Next trade the steps; closing the second closes both.
TEST(StyleSheetCreator, TheStepsAndTheirButtons) {
    BuilderViews v;
    styleSheetWiz& two = atStepTwo(v, true);
    styleSheet& one = v.program.forms->get<styleSheet>();
    EXPECT_TRUE(two.isVisible() && !one.isVisible());
    EXPECT_TRUE(one.ui.webber->browseMode() &&
                one.ui.webber->documentHTML().contains("id=\"rule\""));
    click(v, two.ui.CancelButton);
    EXPECT_TRUE(one.isVisible() && !two.isVisible());
    click(v, one.ui.btnColourPicker);
    EXPECT_TRUE(v.program.launcher.started.at(0).program.endsWith("/tools/ColourPicker.exe"));
    click(v, one.ui.btnHelp);
    EXPECT_TRUE(v.program.forms->get<frmHelp>().ui.txtHelp.text().startsWith("STYLE SHEET"));
    v.run([&] { two.unload(); });
    v.settle();
    EXPECT_FALSE(v.loaded<styleSheet>() || v.loaded<styleSheetWiz>());
}

// The rules go to the chosen .css file as they stand, with one line break, over any
// file of that name; a cancelled save closes the creator; a failed write keeps it open.
TEST(StyleSheetCreator, AnExternalSheetHoldsThePastedRules) {
    const struct {
        const char* file;
        QString written;
        bool closes = true;
    } cases[] = {
        {"new.css", "b { }\r\n"},
        {"old.css", "b { }\r\n"},
        {nullptr, ""},
        {"missing/folder/x.css", "", false},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        const QString path = v.program.scratch(c.file ? c.file : "none.css");
        writeFile(v.program.scratch("old.css"), "older rules, longer than the new ones\r\n");
        v.program.pickers.files = {c.file ? std::optional(path) : std::nullopt};
        click(v, atStepTwo(v, true).ui.OKButton);
        EXPECT_EQ(v.program.pickers.asked.at(0).file.filter, "CSS Files (*.css)|*.css");
        EXPECT_EQ(readFile(path), c.written);
        EXPECT_EQ(v.loaded<styleSheetWiz>() || v.loaded<styleSheet>(), !c.closes);
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// Within the document the wrapped rules go just before the page's `</HEAD>`. No
// leaves the block to copy, and Finish again wraps it again. The page's text is
// taken, also when the source view opened the creator, whose newer text is lost.
TEST(StyleSheetCreator, WithinTheDocumentTheBlockGoesBeforeTheEndOfTheHead) {
    const QString block = "<!--Created using Zelvo Tessara Style Sheet Creator-->\r\n"
                          "<style><!--\r\n%1\r\n--></style>\r\n<!--End of Style Sheet-->";
    const QString paste = "Paste code in current document?";
    const struct {
        std::deque<int> answers;
        QStringList said;
        QString placed;
        bool fromSource = false;
    } cases[] = {
        {{vbYes}, {paste}, block.arg("b { }")},
        {{vbNo, vbOK, vbYes},
         {paste,
          "The required changes have been made. The code is ready to be pasted in any document",
          paste},
         block.arg(block.arg("b { }"))},
        {{vbYes}, {paste}, block.arg("b { }"), true},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.page().setDocumentHTML("<html><head><title>t</title></head><body>x</body></html>");
        QString result = v.page().documentHTML();
        result.insert(result.indexOf("</HEAD>"), c.placed);
        v.area().setText("newer source text");
        if (c.fromSource)
            v.zelvo.show();
        v.program.prompts.answers = c.answers;
        styleSheetWiz& w = atStepTwo(v, false, c.fromSource);
        for (int i = 0; i < c.said.count(paste); ++i)
            click(v, w.ui.OKButton);
        EXPECT_EQ(v.area().text() + '|' + v.page().documentHTML(), result + '|' + result);
        EXPECT_EQ(v.asked(), c.said);
        EXPECT_FALSE(v.zelvo.isVisible() || v.loaded<styleSheetWiz>() || v.loaded<styleSheet>());
        EXPECT_TRUE(v.program.failures.empty());
    }
}
