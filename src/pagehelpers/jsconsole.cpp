#include "jsconsole.h"

#include "platform/vbstrings.h"

namespace zt {

JSConsole::JSConsole(FormRegistry& forms) : Form(forms) {}

JSConsole::~JSConsole() = default;

void JSConsole::takeFragment(QString fragment, ConsoleLanding landing) {
    int searchFrom = 1;
    switch (landing) {
    case ConsoleLanding::OpenTag:
        if (fragment.endsWith(QLatin1Char('>')))
            fragment.back() = QLatin1Char(' ');
        ui.theCode.setSelText(fragment);
        return;
    case ConsoleLanding::AtSelection:
        ui.theCode.setSelText(fragment);
        break;
    case ConsoleLanding::WholeText:
        ui.theCode.setText(fragment);
        break;
    case ConsoleLanding::AtSelectionForm:
        ui.theCode.setSelText(fragment);
        searchFrom = 8;
        break;
    }
    // The `>` is selected, so the attributes the console adds go in before it. A
    // text without one gives a start of -1, which the text box refuses.
    ui.theCode.setSelStart(vb::InStr(searchFrom, ui.theCode.text(), QStringLiteral(">")) - 1);
    ui.theCode.setSelLength(1);
}

} // namespace zt
