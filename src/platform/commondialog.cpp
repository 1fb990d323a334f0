#include "commondialog.h"

#include "desktop.h"
#include "runtimefailure.h"

#include <QFileInfo>

namespace zt {

namespace {

// A saved name typed without an extension gets the default one; a pattern such
// as "*.html" is no extension to add.
QString withDefaultExt(const QString& name, const QString& defaultExt) {
    if (defaultExt.isEmpty() || defaultExt.contains(QLatin1Char('*')) ||
        !QFileInfo(name).suffix().isEmpty())
        return name;
    QString ext = defaultExt;
    if (ext.startsWith(QLatin1Char('.')))
        ext.remove(0, 1);
    return name + QLatin1Char('.') + ext;
}

} // namespace

void CommonDialog::cancelled() const {
    if (cancelError)
        throw RuntimeFailure::cancel();
}

void CommonDialog::showOpen() {
    const auto chosen = m_pickers.openFile({fileName, filter, defaultExt, dialogTitle});
    if (!chosen)
        return cancelled();
    fileName = *chosen;
}

void CommonDialog::showSave() {
    const auto chosen = m_pickers.saveFile({fileName, filter, defaultExt, dialogTitle});
    if (!chosen)
        return cancelled();
    fileName = withDefaultExt(*chosen, defaultExt);
}

void CommonDialog::showColor() {
    const auto chosen = m_pickers.color(color);
    if (!chosen)
        return cancelled();
    color = *chosen;
}

void CommonDialog::showPrinter() {
    if (!m_pickers.printer())
        cancelled();
}

} // namespace zt
