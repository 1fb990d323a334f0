#include "stylesheetwiz.h"

#include "stylesheet.h"

#include "builders/protocol.h"
#include "shell/modapi.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/dialogparts.h"
#include "platform/prompts.h"
#include "platform/runtimefailure.h"
#include "platform/services.h"
#include "platform/textfiles.h"

#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

const QString kAssistant = QStringLiteral("Assistant: Zelvo");

QString styleBlock(const QString& rules) {
    return "<!--Created using Zelvo Tessara Style Sheet Creator-->\r\n<style><!--\r\n" + rules +
           "\r\n--></style>\r\n<!--End of Style Sheet-->";
}

} // namespace

styleSheetWiz::styleSheetWiz(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("styleSheetWiz"),
                         QStringLiteral("Style Sheet Creator Wizard: [Step 2] - Zelvo Tessara"));
    setWindow(window);
    layOut(
        window,
        {
            // control, caption, default, place
            {memo("txtCode", ui.txtCode, ui.txtCodeView), "&Paste the Code here", "", Place::Line},
            {option("radInt", ui.radInt), "&Use within document", "", Place::Line},
            {option("radExt", ui.radExt), "&Create External Style Sheet", "1", Place::Line},
            {button("OKButton", ui.OKButton), "Finish", "", Place::Accept},
            {button("CancelButton", ui.CancelButton), "<< &Back", "", Place::Cancel},
        });
    // Enter starts a new line of rules.
    ui.OKButton->setAutoDefault(false);
    ui.OKButton->setDefault(false);
    window->resize(560, 420);
    ui.compOrEdit.setText(caller::kComp);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

styleSheetWiz::~styleSheetWiz() = default;

void styleSheetWiz::load() {
    stayOnTop(*this);
}

void styleSheetWiz::formUnload(bool& cancel) {
    (void)cancel;
    forms().unload<styleSheet>();
}

void styleSheetWiz::OKButton_Click() {
    if (ui.radExt->isChecked())
        writeStyleSheetFile();
    else
        placeInDocument();
}

void styleSheetWiz::CancelButton_Click() {
    forms().get<styleSheet>().show();
    hide();
}

// The file holds the rules as they stand and one line break, and replaces any file of
// that name without a question. A failure of the writing keeps the wizard open.
void styleSheetWiz::writeStyleSheetFile() {
    ui.ComDlg.fileName.clear();
    ui.ComDlg.filter = QStringLiteral("CSS Files (*.css)|*.css");
    ui.ComDlg.showSave();
    try {
        if (!ui.ComDlg.fileName.isEmpty())
            textfiles::write(ui.ComDlg.fileName, ui.txtCode.text() + QStringLiteral("\r\n"));
        unload();
    } catch (const RuntimeFailure&) {
    }
}

// The block is wrapped in the text box first, so No leaves it ready to copy, and
// Finish again wraps it again. The block is placed through the source text, which
// is taken from the page and goes back to it.
void styleSheetWiz::placeInDocument() {
    ui.txtCode.setText(styleBlock(ui.txtCode.text()));
    Prompts& prompts = *services().prompts;
    if (prompts.msgBox(QStringLiteral("Paste code in current document?"), vbYesNo | vbQuestion,
                       kAssistant) != vbYes) {
        prompts.msgBox(QStringLiteral("The required changes have been made. The code is ready "
                                      "to be pasted in any document"),
                       vbInformation, kAssistant);
        return;
    }
    Zelvo& zelvo = forms().get<Zelvo>();
    PageEngine& page = *forms().get<Tessara>().ui.txtComp;
    const bool visual = ui.compOrEdit.text() == caller::kComp;
    TextControl& area = zelvo.ui.area;
    zelvo.show();
    if (visual)
        area.setText(page.documentHTML());
    // Case changes keep positions, so the place found in the lower-case copy holds.
    int at = area.text().toLower().indexOf(QLatin1String("</head>"));
    if (at < 0) {
        prompts.msgBox(QStringLiteral("End of head tag not found. Style Sheet has been added in "
                                      "the beginning of document"),
                       vbInformation, kAssistant);
        at = 0;
    }
    area.setSelStart(at);
    area.setSelText(ui.txtCode.text());
    if (visual) {
        page.setDocumentHTML(area.text());
        zelvo.hide();
    }
    unload();
}

} // namespace zt
