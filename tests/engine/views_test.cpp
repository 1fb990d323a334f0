// The two views of one document on the real page engine.
#include "enginekit.h"

#include "builders/table.h"
#include "platform/engine/webengine.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"
#include "support/testprogram.h"

#include <QAction>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

class RealViews : public ::testing::Test {
protected:
    void SetUp() override {
        program = std::make_unique<TestProgram>();
        program->services.makeEngine = [this](QWidget* parent) {
            return std::make_unique<WebPageEngine>(program->clipboard, parent);
        };
    }
    void TearDown() override {
        program.reset();
        failAtGuard();
    }
    Zelvo& zelvo() { return program->forms->get<Zelvo>(); }
    Tessara& tessara() { return program->forms->get<Tessara>(); }

    std::unique_ptr<TestProgram> program;
};

} // namespace

TEST_F(RealViews, PageTravelsBetweenTheViewsAndIsSavedWithTheProgramsGeneratorLine) {
    const QString page =
        "<HTML><HEAD><TITLE>t</TITLE></HEAD><BODY><P>Hello&nbsp;there</P></BODY></HTML>";
    zelvo().ui.area.setText(page);
    program->event([&] { zelvo().mnuTessara(); });
    EXPECT_TRUE(tessara().isVisible());

    program->event([&] { tessara().mnuEditor(); });
    const QString source = zelvo().ui.area.text();
    EXPECT_TRUE(source.contains(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"))
        << source.toStdString();
    EXPECT_FALSE(source.contains("Editing Control"));
    EXPECT_TRUE(source.contains("<P>Hello&nbsp;there</P>", Qt::CaseInsensitive));
    EXPECT_TRUE(source.contains("\r\n"));
    EXPECT_EQ(zelvo().ui.star.text(), "*");

    const QString path = program->scratch("real.html");
    zelvo().Tag = path;
    program->event([&] { tessara().mnuSave(); });
    const QString written = readFile(path);
    EXPECT_EQ(written.count(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"), 1);
    EXPECT_EQ(written, zelvo().ui.area.text() + "\r\n")
        << "the rewritten source buffer is what was saved";
    EXPECT_TRUE(written.contains("Hello&nbsp;there"));
    EXPECT_EQ(zelvo().ui.star.text(), "");
    EXPECT_TRUE(program->failures.empty());
}

TEST_F(RealViews, TwoFragmentsBeforeTheTickInsertOnlyTheSecondAtTheCaret) {
    tessara().ui.txtComp->setDocumentHTML("<HTML><HEAD></HEAD><BODY><P>page</P></BODY></HTML>");
    tessara().VisualInsert("<HR>");
    tessara().VisualInsert("<B>second</B>");
    tessara().ui.Timer1.fire();
    const QString html = tessara().ui.txtComp->documentHTML();
    EXPECT_TRUE(html.contains("<b>second</b>")) << html.toStdString();
    EXPECT_FALSE(html.contains("<hr"));
    EXPECT_TRUE(html.contains("page"));
    EXPECT_FALSE(tessara().ui.Timer1.enabled());
    EXPECT_TRUE(program->clipboard.html().contains("second"))
        << "the fragment went by the clipboard";
    EXPECT_TRUE(program->failures.empty());
}

TEST_F(RealViews, ATableFromTheVisualViewArrivesAsATable) {
    tessara().ui.txtComp->setDocumentHTML("<HTML><HEAD></HEAD><BODY><P>page</P></BODY></HTML>");
    program->event([&] { tessara().ui.mnuInsTable->trigger(); });
    program->event([&] { program->forms->get<table>().ui.OKButton->click(); });
    tessara().ui.Timer1.fire();
    const QString html = tessara().ui.txtComp->documentHTML();
    EXPECT_TRUE(html.contains("<table border=\"1\" width=\"100%\">")) << html.toStdString();
    EXPECT_EQ(html.count("<tr>"), 2);
    EXPECT_TRUE(html.contains("<td> Row 2 Col 2</td>"));
    EXPECT_TRUE(program->failures.empty());
}
