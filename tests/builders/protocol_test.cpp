#include "builderkit.h"

#include "builders/elementdialog.h"
#include "builders/rule.h"
#include "pagehelpers/jsconsole.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

using namespace zt;
using namespace zt::test;

namespace {

// The smallest element dialog: a required name, three-way delivery, and the
// console landing of each case.
ConsoleLanding g_landing = ConsoleLanding::OpenTag;

class probe : public ElementDialog {
public:
    explicit probe(FormRegistry& forms)
        : ElementDialog(forms, {.name = "probe",
                                .caption = "Probe",
                                .shape = Dispatch::ThreeWay,
                                .console = g_landing}) {
        build(ui.compOrEdit, {{text("txtName", ui.txtName, ui.txtNameView),
                               "Name:",
                               "",
                               Place::Row,
                               {},
                               "A valid name was not found"},
                              {button("OKButton", ui.OKButton), "OK", "", Place::Accept}});
    }

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        QPushButton* OKButton = nullptr;
    } ui;

protected:
    QString fragment() override { return "<i n=" + ui.txtName.text() + ">"; }
};

} // namespace

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

// The console's text starts as `<body>|</body>` with the caret at the bar.
TEST(Protocol, AcceptDeliversByTheCallerAndTheConsoleLanding) {
    const struct {
        const char* mode;
        ConsoleLanding landing;
        QString area, theCode;
        int selStart, selLength;
    } cases[] = {
        {"edit", ConsoleLanding::OpenTag, "src<i n=a>", "<body></body>", 6, 0},
        {"other", ConsoleLanding::OpenTag, "src", "<body></body>", 6, 0},
        {"jsc", ConsoleLanding::OpenTag, "src", "<body><i n=a </body>", 13, 0},
        {"jsc", ConsoleLanding::AtSelection, "src", "<body><i n=a></body>", 5, 1},
        {"jsc", ConsoleLanding::WholeText, "src", "<i n=a>", 6, 1},
        {"jsc", ConsoleLanding::AtSelectionForm, "src", "<body><i n=a></body>", 12, 1},
    };
    for (const auto& c : cases) {
        BuilderViews v;
        v.area().setText("src");
        v.area().setSelStart(3);
        TextControl& theCode = v.program.forms->get<JSConsole>().ui.theCode;
        theCode.setText("<body></body>");
        theCode.setSelStart(6);
        g_landing = c.landing;
        probe& dialog = dialogFor<probe>(*v.program.forms, c.mode);
        dialog.ui.txtName.setText("a");
        v.run([&] { dialog.ui.OKButton->click(); });
        EXPECT_EQ(v.area().text(), c.area) << c.mode;
        EXPECT_EQ(theCode.text(), c.theCode) << c.mode;
        EXPECT_EQ(theCode.selStart(), c.selStart) << c.mode;
        EXPECT_EQ(theCode.selLength(), c.selLength) << c.mode;
        EXPECT_FALSE(v.loaded<probe>()) << c.mode;
        EXPECT_TRUE(v.program.failures.empty()) << c.mode;
    }
    g_landing = ConsoleLanding::OpenTag;
}

TEST(Protocol, ARequiredFieldLeftEmptyIsWarnedOfAndKeepsTheDialog) {
    BuilderViews v;
    probe& dialog = dialogFor<probe>(*v.program.forms, "edit");
    v.run([&] { dialog.show(); });
    v.run([&] { dialog.ui.OKButton->click(); });
    ASSERT_EQ(v.asked(), QStringList{"A valid name was not found"});
    EXPECT_EQ(question(v.program), "A valid name was not found|Assistant: Zelvo|48");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.window()->focusWidget(), dialog.ui.txtNameView);
    EXPECT_EQ(v.area().text(), "");
}

TEST(Protocol, ADialogOpensCentredOverTheViewOrTheScreen) {
    for (const bool viewShown : {true, false}) {
        BuilderViews v;
        v.tessara.hide();
        if (viewShown) {
            v.zelvo.window()->setGeometry(100, 80, 900, 700);
            v.zelvo.show();
        }
        v.run([&] { v.zelvo.mnuHR(); });
        const QRect over = viewShown ? v.zelvo.window()->frameGeometry()
                                     : QGuiApplication::primaryScreen()->availableGeometry();
        const QPoint centre = v.program.forms->get<rule>().window()->frameGeometry().center();
        EXPECT_LE((centre - over.center()).manhattanLength(), 8) << viewShown;
    }
}
