// The text commands of the source view's menus and keys: each runs its command on the
// selection of area.
#include "shell/zelvo.h"

#include "casecommands.h"
#include "editcommands.h"
#include "surroundcommands.h"
#include "tabcommands.h"
#include "wrapcommands.h"

#include "platform/services.h"
#include "platform/texteditview.h"

namespace zt {

namespace {

void wrapIn(Zelvo& form, Wrap which) {
    runWrap(form.ui.area, which, [&form] { form.ui.areaView->setFocus(); });
}

} // namespace

void Zelvo::mnubold() {
    wrapIn(*this, Wrap::Bold);
}
void Zelvo::mnuitalics() {
    wrapIn(*this, Wrap::Italics);
}
void Zelvo::mnuUnderline() {
    wrapIn(*this, Wrap::Underline);
}
void Zelvo::mnuAbbreviation() {
    wrapIn(*this, Wrap::Abbreviation);
}
void Zelvo::mnuBig() {
    wrapIn(*this, Wrap::Big);
}
void Zelvo::mnuCode() {
    wrapIn(*this, Wrap::Code);
}
void Zelvo::mnuEmphasis() {
    wrapIn(*this, Wrap::Emphasis);
}
void Zelvo::mnuKeyboard() {
    wrapIn(*this, Wrap::Keyboard);
}
void Zelvo::mnuPreformat() {
    wrapIn(*this, Wrap::Preformat);
}
void Zelvo::mnuQuote() {
    wrapIn(*this, Wrap::Quote);
}
void Zelvo::mnuSmall() {
    wrapIn(*this, Wrap::Small);
}
void Zelvo::mnuStrong() {
    wrapIn(*this, Wrap::Strong);
}
void Zelvo::mnuSubscript() {
    wrapIn(*this, Wrap::Subscript);
}
void Zelvo::mnuSuperscript() {
    wrapIn(*this, Wrap::Superscript);
}
void Zelvo::mnuComment() {
    wrapIn(*this, Wrap::Comment);
}
void Zelvo::mnuIndent() {
    wrapIn(*this, Wrap::Indent);
}
void Zelvo::mnuOutdent() {
    wrapIn(*this, Wrap::Outdent);
}

void Zelvo::mnuALeft() {
    surroundSelection(ui.area, Surround::AlignLeft);
}
void Zelvo::mnuACenter() {
    surroundSelection(ui.area, Surround::Center);
}
void Zelvo::mnuARight() {
    surroundSelection(ui.area, Surround::AlignRight);
}
void Zelvo::mnuAJustify() {
    surroundSelection(ui.area, Surround::Justify);
}
void Zelvo::mnuNoBreak() {
    surroundSelection(ui.area, Surround::NoBreak);
}
void Zelvo::mnuLineBreak() {
    insertTag(ui.area, Insertion::LineBreak);
}
void Zelvo::mnuWordBreak() {
    insertTag(ui.area, Insertion::WordBreak);
}
void Zelvo::mnuParagraph() {
    insertParagraph(ui.area);
}

void Zelvo::mnuLcase() {
    lowerCase(ui.area);
}
void Zelvo::mnuUcase() {
    upperCase(ui.area);
}
void Zelvo::mnuIcase() {
    invertedCase(ui.area);
}
void Zelvo::mnuTitleCase() {
    titleCase(ui.area);
}

void Zelvo::mnuTabify() {
    tabify(ui.area);
}
void Zelvo::mnuUntabify() {
    untabify(ui.area);
}

void Zelvo::mnuSelectAll() {
    selectAll(ui.area);
}
void Zelvo::mnuCopy() {
    copySelection(ui.area, *services().clipboard);
}
void Zelvo::mnuCut() {
    cutSelection(ui.area, *services().clipboard);
}
void Zelvo::mnuPaste() {
    pasteClipboard(ui.area, *services().clipboard);
}

} // namespace zt
