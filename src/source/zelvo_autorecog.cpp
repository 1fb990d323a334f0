// Auto Tag Recognition: while its menu item is checked, every Change of the source
// text looks at the characters just typed before the caret. The beginning of a tag
// it knows brings the offer of the element's dialog; the beginning of
// <blockquote>, </blockquote> or of a colour name in color=" is completed, with the
// completion selected so that typing on replaces it.
#include "shell/zelvo.h"

#include "platform/menutable.h"
#include "platform/prompts.h"
#include "platform/services.h"

#include <QCursor>
#include <QMenu>

#include <array>
#include <cstring>

namespace zt {

namespace {

// One test of the row, on the characters before the caret, lower-cased. An offer
// asks its question and, on Yes, takes the characters away and runs its action; a
// completion goes in at the caret, then the caret goes back and selects.
struct Recognition {
    const char* typed;
    const char* question = nullptr;
    void (Zelvo::*action)() = nullptr;
    const char* completion = nullptr;
    // How far the caret goes back after the completion, and how much it then selects.
    int back = 0;
    bool beep = false;
};

Recognition offer(const char* typed, const char* question, void (Zelvo::*action)()) {
    return {.typed = typed, .question = question, .action = action};
}
Recognition complete(const char* typed, const char* completion, int back, bool beep = false) {
    return {.typed = typed, .completion = completion, .back = back, .beep = beep};
}

// All run at each Change, in this order, with no early end. The completion of
// </bl goes back one more than it put in, and selects from the l typed; only red
// beeps; and since the caret is read once, gr completes to green and then, tested
// again, to gray, which always wins.
const std::array kRecognitions{
    offer("<tab", "This looks like a table tag. Would you like Zelvo to assist you?",
          &Zelvo::tableMenuAtPointer),
    offer("<tr", "This looks like a table row. Would you like Zelvo to assist you?",
          &Zelvo::mnuinsrowcol),
    offer("<img", "This looks like an image tag. Would you like Zelvo to assist you?",
          &Zelvo::mnuImage),
    offer("<ul", "This looks like a bulletted list. Would you like Zelvo to assist you?",
          &Zelvo::mnuBullets),
    offer("<ol", "This looks like a numbered list. Would you like Zelvo to assist you?",
          &Zelvo::mnuNumbering),
    offer("<a h", "This looks like a hyperlink. Would you like Zelvo to assist you?",
          &Zelvo::mnuHyperlink),
    offer("<a n", "This looks like a anchor tag. Would you like Zelvo to assist you?",
          &Zelvo::mnuBookmarks),
    complete("<blo", "ckquote>", 8),
    complete("</bl", "ockquote>", 10),
    offer("<input", "This looks like a form element. Would you like Zelvo to assist you?",
          &Zelvo::formMenuAtPointer),
    complete("color=\"r", "ed\"", 3, true),
    complete("color=\"t", "eal\"", 4),
    complete("color=\"y", "ellow\"", 6),
    complete("color=\"f", "uchsia\"", 7),
    complete("color=\"l", "ime\"", 4),
    complete("color=\"m", "aroon\"", 6),
    complete("color=\"a", "qua\"", 4),
    complete("color=\"o", "live\"", 5),
    complete("color=\"p", "urple\"", 6),
    complete("color=\"s", "ilver\"", 6),
    complete("color=\"n", "avy\"", 4),
    complete("color=\"w", "hite\"", 5),
    complete("color=\"bla", "ck\"", 3),
    complete("color=\"blu", "e\"", 2),
    complete("color=\"gr", "een\"", 4),
    complete("color=\"gr", "ay\"", 4),
};

// Nothing is recognised in the first ten characters of the text.
constexpr int kFirstPosition = 11;

} // namespace

void Zelvo::mnuAutoRecog() {
    setMark(ui.mnuAutoRecog, !ui.mnuAutoRecog->isChecked());
}

// Each test reads the text afresh at the caret's first place, also after an earlier
// test moved the caret. Every assignment fires Change, so the chain, this routine
// included, runs again inside it.
void Zelvo::autoTagRecognition() {
    const int p = ui.area.selStart();
    if (p < kFirstPosition)
        return;
    for (const Recognition& test : kRecognitions) {
        const int n = int(std::strlen(test.typed));
        if (ui.area.text().mid(p - n, n).toLower() != QLatin1String(test.typed))
            continue;
        if (test.question) {
            const int answer =
                services().prompts->msgBox(QString::fromLatin1(test.question), vbYesNo | vbQuestion,
                                           QStringLiteral("Assistant: Zelvo"));
            if (answer != vbYes)
                continue;
            ui.area.setSelStart(p - n);
            ui.area.setSelLength(n);
            ui.area.setSelText(QString());
            (this->*test.action)();
        } else {
            ui.area.setSelText(QString::fromLatin1(test.completion));
            ui.area.setSelStart(ui.area.selStart() - test.back);
            ui.area.setSelLength(test.back);
            if (test.beep)
                services().desktop->beep();
        }
    }
}

void Zelvo::tableMenuAtPointer() {
    ui.mnutable->menu()->popup(QCursor::pos());
}

void Zelvo::formMenuAtPointer() {
    ui.mnuForm->menu()->popup(QCursor::pos());
}

} // namespace zt
