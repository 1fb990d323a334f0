#include "builderkit.h"

#include "builders/colours.h"
#include "builders/protocol.h"
#include "pagehelpers/jsconsole.h"
#include "platform/dialogparts.h"

#include "platform/commondialog.h"

#include <QComboBox>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(Protocol, EachShapeTestsItsOwnCallers) {
    using enum Target;
    const QString modes[] = {"edit", "comp", "jsc", "", "Edit"};
    const struct {
        Dispatch shape;
        Target targets[5]; // in the order of modes
    } cases[] = {
        {Dispatch::EditFirst, {Source, Visual, Visual, Visual, Visual}},
        {Dispatch::CompFirst, {Source, Visual, Source, Source, Source}},
        {Dispatch::EditOrConsole, {Source, Console, Console, Console, Console}},
        {Dispatch::ThreeWay, {Source, Visual, Console, Nowhere, Nowhere}},
        {Dispatch::SourceOnly, {Source, Source, Source, Source, Source}},
    };
    for (const auto& c : cases) {
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(targetOf(c.shape, modes[i]), c.targets[i])
                << int(c.shape) << " " << modes[i].toStdString();
    }
}

TEST(Protocol, EachTargetGetsTheFragment) {
    BuilderViews v;
    v.area().setText("source");
    v.area().setSelStart(6);
    JSConsole& console = v.program.forms->get<JSConsole>();
    console.ui.theCode.setText("<body></body>");
    console.ui.theCode.setSelStart(6);

    deliver(*v.program.forms, Dispatch::ThreeWay, "edit", "<a>");
    deliver(*v.program.forms, Dispatch::ThreeWay, "jsc", "<b ");
    deliver(*v.program.forms, Dispatch::ThreeWay, "other", "<c>");
    EXPECT_EQ(v.area().text(), "source<a>");
    EXPECT_EQ(console.ui.theCode.text(), "<body><b </body>");
    EXPECT_FALSE(v.tessara.ui.Timer1.enabled());

    deliver(*v.program.forms, Dispatch::ThreeWay, "comp", "<d>");
    EXPECT_TRUE(v.tessara.ui.Timer1.enabled());
    v.tick();
    EXPECT_EQ(v.page().bodyContent(), "<d>one two three");
}

TEST(Protocol, ColourButtonOfAColourList) {
    using Picks = std::deque<std::optional<quint32>>;
    const struct {
        const char* what;
        Picks picks;
        QString text;
    } cases[] = {
        {"black empties the list's text", {0}, ""},
        {"cancel on first use empties it too", {std::nullopt}, ""},
        {"a colour", {0x00FF00}, "#00FF00"},
        {"a cancel takes the earlier colour again", {0x0000FF, std::nullopt}, "#FF0000"},
    };
    for (const auto& c : cases) {
        ScriptedPickers pickers;
        pickers.colors = c.picks;
        CommonDialog comdlg(pickers);
        std::unique_ptr<QComboBox> colours(makeCombo(nullptr, "cmbcolour", namedColours()));
        for (std::size_t i = 0; i < c.picks.size(); ++i) {
            colours->setEditText("none");
            pickHexColour(comdlg, *colours);
        }
        EXPECT_EQ(colours->currentText(), c.text) << c.what;
        EXPECT_EQ(colours->count(), 16) << c.what;
    }
}
