// The two views of one document on the real page engine.
#include "enginekit.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "support/testprogram.h"

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

TEST(RealViews, PageTravelsBetweenTheViewsAndIsSavedWithTheProgramsGeneratorLine) {
    auto program = realProgram();
    const auto zelvo = [&]() -> Zelvo& { return program->forms->get<Zelvo>(); };
    const auto tessara = [&]() -> Tessara& { return program->forms->get<Tessara>(); };
    const QString page =
        "<HTML><HEAD><TITLE>t</TITLE></HEAD><BODY><P>Hello&nbsp;there</P></BODY></HTML>";
    zelvo().ui.area.setText(page);
    program->event([&] { zelvo().mnuTessara(); });
    EXPECT_TRUE(tessara().isVisible());

    program->event([&] { tessara().mnuEditor(); });
    const QString source = zelvo().ui.area.text();
    EXPECT_FALSE(source.contains("Editing Control")) << source.toStdString();
    EXPECT_TRUE(source.contains("<P>Hello&nbsp;there</P>\r\n", Qt::CaseInsensitive));
    EXPECT_EQ(zelvo().ui.star.text(), "*");

    const QString path = program->scratch("real.html");
    zelvo().Tag = path;
    program->event([&] { tessara().mnuSave(); });
    const QString written = readFile(path);
    EXPECT_EQ(written.count(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"), 1);
    EXPECT_EQ(written, source + "\r\n") << "the rewritten source buffer is what was saved";
    EXPECT_EQ(zelvo().ui.star.text(), "");
    EXPECT_TRUE(program->failures.empty());
    program.reset();
    failAtGuard();
}
