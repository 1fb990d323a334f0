#include "builders/builderkit.h"
#include "source/areafixture.h"

#include "builders/frmrow.h"

#include <QMenu>

using namespace zt;
using namespace zt::test;

namespace {

// The source view with recognition switched on by its menu, typed into key by key.
struct Typing : BuilderViews {
    Typing() {
        zelvo.show();
        zelvo.ui.mnuAutoRecog->trigger();
    }
};

const QString kTen = "0123456789";

} // namespace

TEST(AutoTagRecognition, CompletionsSelectWhatTheyPutInWithTheirOddities) {
    const std::vector<std::pair<QString, QString>> cases{
        {"color=\"r", "color=\"r[ed\"]"},
        {"color=\"re", "color=\"re|"}, // the typed e replaces the completion
        {"color=\"g", "color=\"g|"},
        {"color=\"gr", "color=\"g[ray\"]"}, // green is put in, then gray over it
        {"<font color=\"blu", "<font color=\"blu[e\"]"},
        {"COLOR=\"R", "COLOR=\"R[ed\"]"},
        {"<blo", "<blo[ckquote>]"},
        {"</bl", "</b[lockquote>]"}, // back one more than it put in
    };
    for (const auto& [typed, after] : cases) {
        Typing v;
        type(v.zelvo.ui.areaView, kTen + typed);
        EXPECT_EQ(shown(v.area()), kTen + after) << typed.toStdString();
        EXPECT_EQ(v.program.desktop.beeps, typed.toLower().startsWith("color=\"r") ? 1 : 0)
            << typed.toStdString();
    }
}

TEST(AutoTagRecognition, OffersAskOnceForWhatIsTypedAndYesTakesItAwayForTheDialog) {
    Typing v;
    v.program.prompts.answers = {vbNo};
    type(v.zelvo.ui.areaView, kTen + "<table");
    EXPECT_EQ(question(v.program),
              "This looks like a table tag. Would you like Zelvo to assist you?|Assistant: "
              "Zelvo|36");
    EXPECT_EQ(v.asked().size(), 1u) << "No lets the rest be typed";

    v.program.prompts.answers = {vbYes};
    type(v.zelvo.ui.areaView, "<tr");
    EXPECT_EQ(shown(v.area()), kTen + "<table|");
    EXPECT_TRUE(v.program.forms->get<frmrow>().isVisible());

    v.program.prompts.answers = {vbYes};
    type(v.zelvo.ui.areaView, "<input");
    EXPECT_EQ(QApplication::activePopupWidget(), v.zelvo.ui.mnuForm->menu());
    v.zelvo.ui.mnuForm->menu()->close();
    EXPECT_EQ(shown(v.area()), kTen + "<table|");

    // Nothing in the first ten characters, and nothing with the item unchecked.
    Typing early;
    type(early.zelvo.ui.areaView, "<tab");
    early.zelvo.ui.mnuAutoRecog->trigger();
    type(early.zelvo.ui.areaView, kTen + "<tab");
    EXPECT_TRUE(early.asked().isEmpty());
    EXPECT_FALSE(early.zelvo.ui.mnuAutoRecog->isChecked());
}
