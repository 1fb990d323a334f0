#include "builderkit.h"

#include "builders/rule.h"
#include "builders/table.h"
#include "pagehelpers/jsconsole.h"
#include "shell/closing.h"

#include "platform/formregistry.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

// Every form the program can load closes with a main window, unless it is named
// here as one that stays. The forms of the tests stand in namespaces of their own.
TEST(Closing, EveryFormOfTheProgramIsInTheListOrStays) {
    const QStringList stay{"Zelvo", "Tessara", "frmHelp"};
    ASSERT_TRUE(formNames().contains("rule"));
    for (const QString& name : formNames()) {
        if (!name.contains("::")) {
            EXPECT_TRUE(closingForms().contains(name) || stay.contains(name)) << name.toStdString();
        }
    }
}

TEST(Closing, AMainWindowsCloseUnloadsTheLoadedDialogs) {
    BuilderViews v;
    v.run([&] { v.zelvo.mnuHR(); });
    v.program.forms->get<table>();
    v.program.forms->get<JSConsole>();
    unloadDialogs(*v.program.forms);
    EXPECT_FALSE(v.loaded<rule>());
    EXPECT_FALSE(v.loaded<table>());
    EXPECT_FALSE(v.loaded<JSConsole>());
    EXPECT_TRUE(v.loaded<Zelvo>());
    EXPECT_TRUE(v.loaded<Tessara>());
}
