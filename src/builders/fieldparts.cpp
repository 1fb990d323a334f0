#include "fieldparts.h"

#include "shell/document.h"

#include "platform/prompts.h"
#include "platform/textcontrol.h"

#include <QComboBox>
#include <QWidget>

namespace zt {

bool warnedOfNoName(const TextControl& txtName, Prompts& prompts) {
    if (!txtName.text().isEmpty())
        return false;
    prompts.msgBox(QStringLiteral("A valid name was not found"), vbExclamation,
                   document::kAssistant);
    return true;
}

// Filling rows into an editable combo puts the first row into its text; the text the
// dialog opens with is the caller's to set.
void fillFontList(QComboBox& listFont, const QStringList& screenFonts) {
    const QString typed = listFont.currentText();
    listFont.addItems(screenFonts.mid(1));
    listFont.setEditText(typed);
}

const QStringList& fontSizes() {
    static const QStringList sizes =
        QStringLiteral("6 7 8 9 10 11 12 14 16 18 20 22 24 26 28 36 48 72").split(u' ');
    return sizes;
}

void enableAll(std::initializer_list<QWidget*> widgets, bool enabled) {
    for (QWidget* widget : widgets)
        widget->setEnabled(enabled);
}

} // namespace zt
