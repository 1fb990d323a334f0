#include "platform/engine/pageengine.h"
#include "platform/textcontrol.h"
#include "support/testprogram.h"

#include <QDialog>

#include <gtest/gtest.h>

using namespace zt;

namespace {

int g_loads = 0;

// A dialog in the program's shape: controls in ui, a load step that reads the
// store, a preview on the engine, and an OK that unloads its own form.
class Sample : public Form {
public:
    explicit Sample(FormRegistry& forms) : Form(forms) {
        auto* window = new QDialog;
        ui.preview = services().makeEngine(window);
        setWindow(window);
        setCaption(QStringLiteral("Sample"));
        ui.txtWidth.setText(QStringLiteral("100"));
    }

    void load() override {
        ++g_loads;
        ui.compOrEdit.setText(
            services().settings->getSetting("Zelvo Tessara 3.0", "Sample", "Mode"));
    }

    void OKButton() {
        services().settings->saveSetting("Zelvo Tessara 3.0", "Sample", "Mode",
                                         ui.compOrEdit.text());
        unload();
        // Still running after Unload of its own form, as the program's dialogs are.
        ui.txtWidth.setText(QStringLiteral("after unload"));
    }

    struct {
        TextControl compOrEdit;
        TextControl txtWidth;
        std::unique_ptr<PageEngine> preview;
    } ui;
};

} // namespace

TEST(FormRegistry, TouchLoadsHiddenUnloadForgetsNextTouchIsFresh) {
    test::TestProgram program;
    FormRegistry& forms = *program.forms;
    g_loads = 0;
    EXPECT_FALSE(forms.isLoaded<Sample>());

    // Touching a control loads the form, hidden, with its load step run once.
    forms.get<Sample>().ui.compOrEdit.setText("edit");
    EXPECT_TRUE(forms.isLoaded<Sample>());
    EXPECT_EQ(g_loads, 1);
    EXPECT_FALSE(forms.get<Sample>().isVisible());
    forms.get<Sample>().ui.preview->setDocumentHTML("<P>x</P>");
    EXPECT_EQ(g_loads, 1);

    program.event([&] { forms.get<Sample>().OKButton(); });
    EXPECT_FALSE(forms.isLoaded<Sample>());
    program.forms->collectUnloaded();
    EXPECT_TRUE(program.failures.empty());

    // The next touch is a new form: design defaults, and the load step read what
    // the accepted form stored.
    Sample& fresh = forms.get<Sample>();
    EXPECT_EQ(g_loads, 2);
    EXPECT_EQ(fresh.ui.txtWidth.text(), "100");
    EXPECT_EQ(fresh.ui.compOrEdit.text(), "edit");
    EXPECT_FALSE(fresh.ui.preview->documentHTML().contains("<P>x</P>"));
    EXPECT_TRUE(forms.unload<Sample>());
    EXPECT_TRUE(forms.unload<Sample>()) << "unloading what is not loaded is no failure";
}
