#include "builderkit.h"

#include "builders/table.h"

#include "platform/textlineview.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// The remembered fields as the user sees them, the boxes and options as 1 or 0:
// rows, cols, padding, spacing, border, alignment, width, colour, empty table,
// specify width, pixels, percentage, remember.
QStringList fieldsOf(const table& t) {
    const auto on = [](const QAbstractButton* b) { return b->isChecked() ? "1" : "0"; };
    return {t.ui.txtrow.text(),     t.ui.txtcol.text(),    t.ui.txtcelpad.text(),
            t.ui.txtcelspac.text(), t.ui.txtBorder.text(), t.ui.cmbAlign->currentText(),
            t.ui.txtWidth.text(),   t.ui.txtColour.text(), on(t.ui.chkEmptyTable),
            on(t.ui.chkwidth),      on(t.ui.radpixels),    on(t.ui.radpercentage),
            on(t.ui.chkRemember)};
}

} // namespace

TEST(TableLoad, RestoresTheRememberedFieldsOnlyWhenRememberIsTrue) {
    using Stored = std::vector<std::pair<QString, QString>>;
    const QStringList designDefaults{"2", "2", "0", "0", "1", "Default", "100",
                                     "",  "0", "1", "0", "1", "0"};
    // Keys that were never written come back with the restore's own defaults, which
    // differ from the design's in the alignment.
    const QStringList restoreDefaults{"2", "2", "0", "0", "1", "left", "100",
                                      "",  "0", "1", "0", "1", "1"};
    const struct {
        const char* what;
        Stored stored;
        QStringList want;
    } cases[] = {
        {"nothing stored", {}, designDefaults},
        {"not remembered", {{"Remember", "0"}, {"Rows", "9"}}, designDefaults},
        {"remembered, no keys", {{"Remember", "1"}}, restoreDefaults},
        {"remembered as a truth value",
         {{"Remember", "true"}, {"PixOrPer", "True"}},
         restoreDefaults},
        {"remembered",
         {{"Remember", "1"},
          {"Rows", "5"},
          {"Cols", "3"},
          {"CelPad", "4"},
          {"CelSpac", "2"},
          {"Border", "0"},
          {"Align", "Centre"},
          {"Width", "640"},
          {"Colour", "#00FF00"},
          {"EmptyTable", "1"},
          {"SpecWidth", "0"},
          {"PixOrPer", "false"}},
         // A false option leaves neither option on.
         {"5", "3", "4", "2", "0", "Centre", "640", "#00FF00", "1", "0", "0", "0", "1"}},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        for (const auto& [key, value] : c.stored)
            v.store("Table", key, value);
        const table& t = v.program.forms->get<table>();
        EXPECT_EQ(fieldsOf(t), c.want) << c.what;
        EXPECT_FALSE(t.isVisible()) << c.what;
        EXPECT_FALSE(t.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << c.what;
        EXPECT_TRUE(v.program.failures.empty()) << c.what;
    }
}

TEST(TableLoad, ARestoredClearWidthBoxDisablesTheWidthAndANonNumberIsRefused) {
    BuilderViews v;
    v.store("Table", "Remember", "1");
    v.store("Table", "SpecWidth", "0");
    v.store("Table", "Rows", "two");
    table& t = v.program.forms->get<table>();
    EXPECT_EQ(t.ui.txtrow.text(), "");
    ASSERT_EQ(v.program.prompts.asked.size(), 1u);
    EXPECT_EQ(v.program.prompts.asked[0].text, "Please enter only valid numerical data");
    EXPECT_FALSE(t.ui.txtWidthView->isEnabled());
    EXPECT_FALSE(t.ui.radpixels->isEnabled());
    EXPECT_FALSE(t.ui.radpercentage->isEnabled());
    t.ui.chkwidth->setChecked(true);
    EXPECT_TRUE(t.ui.txtWidthView->isEnabled());
    EXPECT_TRUE(t.ui.radpixels->isEnabled());
}
