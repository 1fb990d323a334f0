#include "builders/rule.h"
#include "shell/closing.h"

#include "platform/formregistry.h"

#include <gtest/gtest.h>

using namespace zt;

// Every form the program can load closes with a main window, unless it is named
// here as one that stays, and those never do. The forms of the tests stand in
// namespaces of their own. The form dialog is not in the list: it stays open.
TEST(Closing, EveryFormOfTheProgramIsInTheListOrStays) {
    const QStringList stay =
        QStringLiteral(
            "Zelvo Tessara frmHelp morvane MHelp Mwizard MeditHTML prewizard formForm "
            "MformTextbox MformTextArea MformButton MformRadChk MformList MformFile "
            "MformFieldset MformHidden restore crashRecover TempClip templates "
            "frmMoreTemp NavMaker NavListURLs LManager LBoxProps LEditHTML LHelp styleSheet "
            "styleSheetWiz")
            .split(' ');
    ASSERT_TRUE(formNames().contains("rule"));
    for (const QString& name : formNames()) {
        if (!name.contains("::")) {
            EXPECT_NE(closingForms().contains(name), stay.contains(name)) << name.toStdString();
        }
    }
}
