#include "builderkit.h"

#include "help/frmhelp.h"
#include "pagehelpers/stylesheet.h"
#include "pagehelpers/stylesheetwiz.h"

#include <QFile>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

styleSheetWiz& wizard(BuilderViews& v) {
    return v.program.forms->get<styleSheetWiz>();
}

void click(BuilderViews& v, QAbstractButton* button) {
    v.run([&] { button->click(); });
    v.settle();
}

// The creator opened from a view and taken to its second step with rules in.
styleSheetWiz& atStepTwo(BuilderViews& v, const QString& rules, bool external,
                         bool fromSource = false) {
    v.run([&] { fromSource ? v.zelvo.mnuStyleSheet() : v.tessara.mnuStyleSheet(); });
    click(v, v.program.forms->get<styleSheet>().ui.btnNext);
    styleSheetWiz& w = wizard(v);
    w.ui.txtCode.setText(rules);
    (external ? w.ui.radExt : w.ui.radInt)->setChecked(true);
    return w;
}

} // namespace

// The first step shows the program's style page running; Next and Back trade the two
// steps; the picker and help are the step's own; closing the second closes both.
TEST(StyleSheetCreator, TheStepsAndTheirButtons) {
    BuilderViews v;
    v.run([&] { v.zelvo.mnuStyleSheet(); });
    styleSheet& one = v.program.forms->get<styleSheet>();
    EXPECT_TRUE(one.isVisible());
    EXPECT_TRUE(one.ui.webber->browseMode());
    EXPECT_TRUE(one.ui.webber->documentHTML().contains("id=\"rule\""));
    click(v, one.ui.btnColourPicker);
    ASSERT_EQ(v.program.launcher.started.size(), 1u);
    EXPECT_TRUE(v.program.launcher.started[0].program.endsWith("/tools/ColourPicker.exe"));
    click(v, one.ui.btnHelp);
    EXPECT_TRUE(v.program.forms->get<frmHelp>().ui.txtHelp.text().startsWith("STYLE SHEET"));

    click(v, one.ui.btnNext);
    EXPECT_TRUE(wizard(v).isVisible() && !one.isVisible());
    EXPECT_TRUE(wizard(v).ui.radExt->isChecked());
    click(v, wizard(v).ui.CancelButton);
    EXPECT_TRUE(one.isVisible() && !wizard(v).isVisible());
    v.run([&] { wizard(v).unload(); });
    v.settle();
    EXPECT_FALSE(v.loaded<styleSheet>() || v.loaded<styleSheetWiz>());
    EXPECT_TRUE(v.program.failures.empty());
}

// The rules go to the chosen file as they stand, with one line break, over any file of
// that name; a cancelled save closes the creator; a file that cannot be written keeps it.
TEST(StyleSheetCreator, AnExternalSheetHoldsThePastedRules) {
    const struct {
        const char* file;
        bool exists, written, closes;
    } cases[] = {
        {"new.css", false, true, true},
        {"old.css", true, true, true},
        {nullptr, false, false, true},
        {"missing/folder/x.css", false, false, false},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        const QString path = c.file ? v.program.scratch(c.file) : QString();
        if (c.exists)
            writeFile(path, "old rules that run longer than the new ones\r\n");
        v.program.pickers.files = {c.file ? std::optional(path) : std::nullopt};
        styleSheetWiz& w = atStepTwo(v, "p { color: red }", true);
        click(v, w.ui.OKButton);
        EXPECT_EQ(v.program.pickers.asked.at(0).file.filter, "CSS Files (*.css)|*.css");
        if (c.file)
            EXPECT_EQ(readFile(path), c.written ? "p { color: red }\r\n" : "") << c.file;
        EXPECT_EQ(v.loaded<styleSheetWiz>() || v.loaded<styleSheet>(), !c.closes);
        EXPECT_TRUE(v.program.failures.empty());
    }
}

// Within the document: the rules, wrapped in a style block, go just before the end
// of the page's head, which the engine writes in capitals. No leaves the wrapped block
// to copy, and Finish again wraps it again. The page's text is what is taken, also
// when the creator was opened from the source view, whose newer text is lost.
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
        styleSheetWiz& w = atStepTwo(v, "b { }", false, c.fromSource);
        for (int i = 0; i < c.said.count(paste); ++i)
            click(v, w.ui.OKButton);
        EXPECT_EQ(v.area().text(), result);
        EXPECT_EQ(v.page().documentHTML(), result);
        EXPECT_EQ(v.asked(), c.said);
        EXPECT_EQ(v.program.prompts.asked.back().title, "Assistant: Zelvo");
        EXPECT_FALSE(v.zelvo.isVisible() || v.loaded<styleSheetWiz>() || v.loaded<styleSheet>());
        EXPECT_TRUE(v.program.failures.empty());
    }
}
