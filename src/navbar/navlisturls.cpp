#include "navlisturls.h"

#include "navgen.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/formregistry.h"
#include "platform/prompts.h"

#include <QPushButton>

namespace zt {

namespace {

// The address that Add offers: the product's home page, which whoever ships the
// program sets here.
const QString kHomePage = QStringLiteral("http://www.example.com/");

} // namespace

NavListURLs::NavListURLs(FormRegistry& forms)
    : ElementDialog(forms, {.name = "NavListURLs",
                            .caption = QStringLiteral("List With Linked Points : Zelvo"),
                            .helpPage = QStringLiteral("navmaker.zhp"),
                            .floats = false}),
      pointList(*this, ui,
                {.pointsCaption = QStringLiteral("&Options"),
                 .pointCaption = QStringLiteral(
                     "&Points: Enter the points here, and press Enter after the point"),
                 .addCaption = QStringLiteral("&Add Point"),
                 .linked = true,
                 .urlDefault = kHomePage,
                 .plainUrlWarning = true,
                 .downWithoutSelection = true,
                 .removeWarning = QStringLiteral(
                     "No point selected to remove. Please click on a point in the options list"),
                 .clearAsks = vbYesNo | vbQuestion | vbDefaultButton2}) {
    build(ui.compOrEdit,
          {
              {pointList.editor(), "", "", Place::Line},
              {button("btnInsert", ui.btnInsert), "Create &Navigation Bar", "", Place::Accept},
              {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
          });
}

NavListURLs::~NavListURLs() = default;

QString NavListURLs::fragment() {
    return navBar(pointList.points(), pointList.urls());
}

// In the visual view the bar is only queued here: the page is rewritten from the
// source text below, and the next tick pastes the bar into the rewritten page.
// Changes made to the page since it was last copied to the source text are lost.
void NavListURLs::accept() {
    ui.txtCode.setText(navStyleBlock(ui.txtCode.text()));
    deliver(fragment());
    Zelvo& zelvo = forms().get<Zelvo>();
    TextControl& area = zelvo.ui.area;
    const int head = navStylePosition(area.text());
    zelvo.show();
    area.setSelStart(head);
    area.setSelText(ui.txtCode.text());
    forms().get<Tessara>().ui.txtComp->setDocumentHTML(area.text());
    if (ui.compOrEdit.text() == caller::kComp)
        zelvo.hide();
    unload();
}

} // namespace zt
