// The designer's commands on its work area and its strip, and the ways out to the
// source window, the generation and the help.
#include "bodyof.h"
#include "medithtml.h"
#include "mhelp.h"
#include "morvane.h"
#include "mwizard.h"
#include "prewizard.h"

#include "builders/colours.h"

#include "platform/formregistry.h"
#include "platform/guard.h"
#include "platform/vbstrings.h"

namespace zt {

namespace {

const QString kDrawingBox = QStringLiteral(
    R"(<div id="Box" style="position:relative;left:0px;top:0px;width:50px;height:30px;)"
    R"(background-color:#FFFFFF;color:#000000;border-width:1;border-style:solid;">)");
// The one fragment with a place of its own; its text is edited in place.
const QString kLabel = QStringLiteral(
    R"(<div style="height: 10px; left: 10px; position: absolute; top: 10px; width: 100px">)"
    R"(New Label</div>)");

} // namespace

void morvane::onResult(DhtmlCommand id) {
    ui.Result->execCommand(id);
}

void morvane::formatResult(DhtmlCommand id) {
    orEndSilently([&] { ui.Result->execCommand(id); });
}

void morvane::mnuCopy() {
    onResult(DECMD_COPY);
}
void morvane::mnuCut() {
    onResult(DECMD_CUT);
}
void morvane::mnuPaste() {
    onResult(DECMD_PASTE);
}
void morvane::mnuDelete() {
    onResult(DECMD_DELETE);
}
void morvane::mnuUndo() {
    onResult(DECMD_UNDO);
}
void morvane::mnuRedo() {
    onResult(DECMD_REDO);
}
void morvane::mnuBold() {
    formatResult(DECMD_BOLD);
}
void morvane::mnuItalics() {
    formatResult(DECMD_ITALIC);
}
void morvane::mnuUnderline() {
    formatResult(DECMD_UNDERLINE);
}
void morvane::mnuFont() {
    formatResult(DECMD_FONT);
}

void morvane::mnuBoxBorder() {
    boxColour(QStringLiteral("; color:"), 9);
}

void morvane::mnuBoxBGColour() {
    boxColour(QStringLiteral("background-color:"), 18);
}

// The old colour is the seven characters behind the key in the form box's style
// (the offset steps over the key and the blank the engine writes after the colon),
// and it is replaced wherever it occurs in the design, dropped fields included. A
// design whose form box is gone fails at the search, unprotected.
void morvane::boxColour(const QString& key, int offset) {
    ui.ComDlg.showColor();
    QString fresh;
    if (ui.ComDlg.color != 0)
        fresh = hexColour(ui.ComDlg.color);
    QString d = ui.Result->documentHTML();
    forms().get<MeditHTML>().ui.txtCode.setText(d);
    const int p = vb::InStr(1, d, QStringLiteral(R"(<div id="MorvaneForm")"));
    const int q = vb::InStr(p, vb::LCase(d), key) + offset;
    const QString old = vb::Mid(d, q, 7);
    d = vb::Replace(d, old, fresh);
    ui.Result->setDocumentHTML(d);
}

void morvane::mnuLabel() {
    ui.tagbar->setDocumentHTML(kLabel);
}

void morvane::mnuDrawing() {
    ui.tagbar->setDocumentHTML(kDrawingBox);
}

void morvane::mnuEditHTML() {
    const QString body = BodyOf(ui.Result->documentHTML());
    MeditHTML& source = forms().get<MeditHTML>();
    source.ui.txtCode.setText(body);
    source.show();
    hide();
}

// The designer stays on screen, so the same design can be generated again.
void morvane::mnuHTMLGen() {
    const QString body = BodyOf(ui.Result->documentHTML());
    forms().get<Mwizard>().ui.txtCode.setText(body);
    forms().get<prewizard>().show();
}

void morvane::help() {
    forms().get<MHelp>().show();
}

} // namespace zt
