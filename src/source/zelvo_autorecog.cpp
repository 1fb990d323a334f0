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
    int back = 0;
    int selected = 0;
    bool beep = false;
};

#define OFFER(typed, what, action)                                                                 \
    Recognition {                                                                                  \
        typed, "This looks like " what ". Would you like Zelvo to assist you?", action             \
    }
#define COMPLETE(typed, completion, back, selected, ...)                                           \
    Recognition {                                                                                  \
        typed, nullptr, nullptr, completion, back, selected, __VA_ARGS__                           \
    }

// All run at each Change, in this order, with no early end. The completion of
// </bl goes back one more than it put in, and selects from the l typed; only red
// beeps; and since the caret is read once, gr completes to green and then, tested
// again, to gray, which always wins.
const std::array kRecognitions{
    OFFER("<tab", "a table tag", &Zelvo::tableMenuAtPointer),
    OFFER("<tr", "a table row", &Zelvo::mnuinsrowcol),
    OFFER("<img", "an image tag", &Zelvo::mnuImage),
    OFFER("<ul", "a bulletted list", &Zelvo::mnuBullets),
    OFFER("<ol", "a numbered list", &Zelvo::mnuNumbering),
    OFFER("<a h", "a hyperlink", &Zelvo::mnuHyperlink),
    OFFER("<a n", "a anchor tag", &Zelvo::mnuBookmarks),
    COMPLETE("<blo", "ckquote>", 8, 8),
    COMPLETE("</bl", "ockquote>", 10, 10),
    OFFER("<input", "a form element", &Zelvo::formMenuAtPointer),
    COMPLETE("color=\"r", "ed\"", 3, 3, true),
    COMPLETE("color=\"t", "eal\"", 4, 4),
    COMPLETE("color=\"y", "ellow\"", 6, 6),
    COMPLETE("color=\"f", "uchsia\"", 7, 7),
    COMPLETE("color=\"l", "ime\"", 4, 4),
    COMPLETE("color=\"m", "aroon\"", 6, 6),
    COMPLETE("color=\"a", "qua\"", 4, 4),
    COMPLETE("color=\"o", "live\"", 5, 5),
    COMPLETE("color=\"p", "urple\"", 6, 6),
    COMPLETE("color=\"s", "ilver\"", 6, 6),
    COMPLETE("color=\"n", "avy\"", 4, 4),
    COMPLETE("color=\"w", "hite\"", 5, 5),
    COMPLETE("color=\"bla", "ck\"", 3, 3),
    COMPLETE("color=\"blu", "e\"", 2, 2),
    COMPLETE("color=\"gr", "een\"", 4, 4),
    COMPLETE("color=\"gr", "ay\"", 4, 4),
};

#undef OFFER
#undef COMPLETE

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
            ui.area.setSelLength(test.selected);
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
