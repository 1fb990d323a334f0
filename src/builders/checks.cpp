#include "checks.h"

#include "shell/document.h"

#include "platform/prompts.h"
#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

namespace zt {

namespace {

// A text box given the text it already holds keeps its caret and raises no Change;
// only a different text is an assignment.
void writeBack(TextControl& field, const QString& text) {
    if (field.text() != text)
        field.setText(text);
}

} // namespace

void checkNumeric(TextControl& field, Prompts& prompts) {
    QString text = field.text();
    if (!text.isEmpty() && !vb::IsNumeric(text)) {
        prompts.msgBox(QStringLiteral("Please enter only valid numerical data"), vbExclamation,
                       document::kAssistant);
        text.clear();
    }
    writeBack(field, text);
}

void checkDigits(TextControl& field, TextControl& checkee, Prompts& prompts,
                 const QString& fallback) {
    checkee.setText(field.text());
    const int length = checkee.text().size();
    for (int i = 0; i < length; ++i) {
        checkee.setSelStart(i);
        checkee.setSelLength(1);
        const char16_t code = checkee.selText().at(0).unicode();
        if (code >= u'0' && code <= u'9')
            continue;
        checkee.setSelText(QString());
        prompts.msgBox(QStringLiteral("Invalid Value"));
        writeBack(field, checkee.text().isEmpty() ? fallback : checkee.text());
        return;
    }
}

} // namespace zt
