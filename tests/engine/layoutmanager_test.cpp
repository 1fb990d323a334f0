// A layout drawn end to end on the real engine: a sample picked, a box built by Box
// Properties, dropped from the strip by the mouse and sized by its handle, the
// layout saved and loaded back, then used in the view that opened the Layout
// Manager.
#include "enginekit.h"

#include "layout/lboxprops.h"
#include "layout/lmanager.h"
#include "platform/engine/webengine.h"
#include "platform/prompts.h"
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

// The new box's frame in the work area: left, top, right, bottom.
QList<int> frameOf(PageEngine& work) {
    QList<int> frame;
    const QVariantList r = evaluate(static_cast<WebPageEngine&>(work),
                                    "(b => b ? [b.left, b.top, b.right, b.bottom] : [])("
                                    "document.getElementById('menu')?.getBoundingClientRect())")
                               .toList();
    for (const QVariant& v : r)
        frame << qRound(v.toDouble());
    return frame;
}

} // namespace

TEST(LayoutDrawing, ABoxAddedDroppedAndSizedIsSavedLoadedAndUsedInEachView) {
    auto program = realProgram();
    Zelvo& zelvo = program->forms->get<Zelvo>();
    zelvo.ui.area.setText("<HTML><HEAD></HEAD><BODY><P>x</P></BODY></HTML>");
    program->event([&] { zelvo.mnuTessara(); });
    Tessara& tessara = program->forms->get<Tessara>();
    auto& page = static_cast<WebPageEngine&>(*tessara.ui.txtComp);
    const QString path = program->scratch("drawn.lyt");

    for (Form* opener : std::initializer_list<Form*>{&zelvo, &tessara}) {
        SCOPED_TRACE(opener == &zelvo ? "source view" : "visual view");
        program->event(
            [&] { opener == &zelvo ? zelvo.mnuLayoutManager() : tessara.mnuLayoutManager(); });
        LManager& lm = program->forms->get<LManager>();
        PageEngine& work = *lm.ui.result;
        ASSERT_TRUE(QTest::qWaitForWindowExposed(lm.window()));
        program->event([&] { lm.ui.PicType[1]->click(); });
        ASSERT_TRUE(eventually([&] { return work.documentHTML().count("LayoutBox") == 6; }));

        program->event([&] { lm.ui.btnAddNew->click(); });
        LBoxProps& props = program->forms->get<LBoxProps>();
        props.ui.txtName.setText("menu");
        props.ui.txtBGColour.setText("#ffcc00");
        program->event([&] { props.ui.OKButton->click(); });
        ASSERT_TRUE(eventually([&] { return lm.ui.tagbar->documentHTML().contains("menu"); }));

        // Dropped into the main column, which selects it, and sized by its corner.
        QWidget* strip = inputOf(*lm.ui.tagbar);
        dragTo(strip, {20, 15}, strip->mapFromGlobal(inputOf(work)->mapToGlobal(QPoint(300, 200))));
        ASSERT_TRUE(eventually([&] { return frameOf(work).size() == 4; }))
            << work.documentHTML().toStdString();
        const QList<int> dropped = frameOf(work);
        const QPoint corner(dropped[2] - 1, dropped[3] - 1);
        dragTo(inputOf(work), corner, corner + QPoint(60, 40));
        ASSERT_TRUE(eventually([&] {
            const QList<int> now = frameOf(work);
            return now.size() == 4 && now[2] - now[0] == dropped[2] - dropped[0] + 60 &&
                   now[3] - now[1] == dropped[3] - dropped[1] + 40;
        })) << work.documentHTML().toStdString();

        // Saved, the work area emptied, and loaded back.
        program->pickers.files = {path, path};
        program->event([&] { lm.ui.btnSaveLayout->click(); });
        program->event([&] { lm.ui.PicType[0]->click(); });
        ASSERT_TRUE(eventually([&] { return frameOf(work).isEmpty(); }));
        program->event([&] { lm.ui.btnLoadLayout->click(); });
        ASSERT_TRUE(eventually([&] { return frameOf(work).size() == 4; }));
        EXPECT_TRUE(readFile(path).endsWith("</div>\r\n\r\n")) << readFile(path).toStdString();

        // Used: into the source at the caret, or into the page in place of its text.
        const QString layout = work.documentHTML();
        program->prompts.answers = {vbYes};
        program->event([&] { lm.ui.btnUseLayout->click(); });
        const auto used = [&](const QString& text) {
            return text.count("LayoutBox") == 6 && text.contains(R"(id="menu")") &&
                   text.contains("background-color: #ffcc00");
        };
        EXPECT_TRUE(used(layout)) << layout.toStdString();
        if (opener == &zelvo) {
            EXPECT_TRUE(used(zelvo.ui.area.text())) << zelvo.ui.area.text().toStdString();
        } else {
            EXPECT_TRUE(eventually([&] {
                return used(page.documentHTML()) && !page.documentHTML().contains("<P>x</P>");
            })) << page.documentHTML().toStdString();
        }
        program->forms->collectUnloaded();
        EXPECT_FALSE(program->forms->isLoaded<LManager>());
    }
    EXPECT_TRUE(program->failures.empty());
}
