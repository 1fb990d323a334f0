// A form drawn end to end in the designer on the real engine: fields built by their
// dialogs, dropped from the strip into the work area by the mouse, one moved, and
// the form generated into the view that opened the designer.
#include "enginekit.h"

#include "designer/mfields.h"
#include "designer/morvane.h"
#include "designer/prewizard.h"
#include "platform/engine/webengine.h"
#include "platform/textcontrol.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "support/testprogram.h"

#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// Builds a field by its dialog and drops it from the strip at a point of the work
// area.
template <class Dialog>
void addField(TestProgram& program, QToolButton* opener, const char* name, QPoint at) {
    morvane& m = program.forms->get<morvane>();
    program.event([&] { opener->click(); });
    Dialog& dialog = program.forms->get<Dialog>();
    dialog.ui.txtName.setText(name);
    program.event([&] { dialog.ui.btnInsert->click(); });
    ASSERT_TRUE(eventually([&] { return m.ui.tagbar->documentHTML().contains(name); }));
    QWidget* strip = inputOf(*m.ui.tagbar);
    dragTo(strip, {20, 15}, strip->mapFromGlobal(inputOf(*m.ui.Result)->mapToGlobal(at)));
    ASSERT_TRUE(eventually([&] {
        return m.ui.Result->documentHTML().contains(QString(R"(name="%1")").arg(name));
    })) << m.ui.Result->documentHTML().toStdString();
}

} // namespace

TEST(FormDesigner, AFormDrawnByTheMouseEndsInTheViewThatOpenedTheDesigner) {
    auto program = realProgram();
    Zelvo& zelvo = program->forms->get<Zelvo>();
    zelvo.ui.area.setText("<HTML><HEAD></HEAD><BODY><P>x</P></BODY></HTML>");
    program->event([&] { zelvo.mnuTessara(); });
    Tessara& tessara = program->forms->get<Tessara>();
    auto& page = static_cast<WebPageEngine&>(*tessara.ui.txtComp);

    for (Form* opener : std::initializer_list<Form*>{&zelvo, &tessara}) {
        SCOPED_TRACE(opener == &zelvo ? "source view" : "visual view");
        program->event([&] { opener == &zelvo ? zelvo.mnuMorvane() : tessara.mnuMorvane(); });
        morvane& m = program->forms->get<morvane>();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m.window()));
        ASSERT_TRUE(
            eventually([&] { return m.ui.Result->documentHTML().contains("MorvaneForm"); }));
        addField<MformTextbox>(*program, m.ui.btnText, "q", {60, 50});
        addField<MformButton>(*program, m.ui.btnButton, "go", {60, 120});
        // The button is selected by a click and moved by a drag.
        QWidget* work = inputOf(*m.ui.Result);
        QTest::mouseClick(work, Qt::LeftButton, {}, {66, 125});
        dragTo(work, {66, 125}, {96, 145});
        const QString moved = R"(name="go" style="position: absolute; left: 81px; top: 131px;")";
        ASSERT_TRUE(eventually([&] { return m.ui.Result->documentHTML().contains(moved); }))
            << m.ui.Result->documentHTML().toStdString();

        program->event([&] { m.ui.btnGenerate->click(); });
        prewizard& pre = program->forms->get<prewizard>();
        pre.ui.txtFormName.setText("f");
        pre.ui.txtFormAction.setText("go.cgi");
        if (opener == &tessara)
            evaluate(page, "getSelection().collapse(document.querySelector('p'), 1)");
        program->event([&] { pre.ui.OKButton->click(); });
        const auto generated = [&](const QString& text) {
            return text.contains(R"(<form name="f" method="POST" action="go.cgi">)") &&
                   text.contains(
                       R"(name="q" style="position: absolute; left: 51px; top: 41px;")") &&
                   text.contains(moved);
        };
        if (opener == &zelvo) {
            EXPECT_TRUE(generated(zelvo.ui.area.text())) << zelvo.ui.area.text().toStdString();
        } else {
            program->event([&] { tessara.ui.Timer1.fire(); });
            EXPECT_TRUE(eventually([&] { return generated(page.documentHTML()); }))
                << page.documentHTML().toStdString();
        }
        program->event([&] { program->forms->unload<morvane>(); });
        program->forms->collectUnloaded();
    }
    EXPECT_TRUE(program->failures.empty());
}
