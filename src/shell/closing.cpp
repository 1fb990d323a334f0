#include "closing.h"

#include "platform/formregistry.h"

namespace zt {

const QStringList& closingForms() {
    static const QStringList names =
        QStringLiteral("bookmarks bullets CursorArrow FindMe formButton formFieldset formFile "
                       "formHidden formList formRadChk forms formTextArea formTextbox frmFont "
                       "frmImage frmrow frmSplash heading highlight hyperlinks insHTML JSConsole "
                       "JSMacros ListURLs loading mail marquee MetaGen pageProps rollover rule "
                       "styleText StartUp table target TheBrowser visTbl")
            .split(QLatin1Char(' '));
    return names;
}

void unloadDialogs(FormRegistry& forms) {
    for (const QString& name : closingForms())
        forms.unload(name);
}

} // namespace zt
