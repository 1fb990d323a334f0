#include "toolbartable.h"

namespace zt {

QIcon themeIcon(const char* name) {
    if (!name || !*name)
        return {};
    // Themes that keep only their symbolic pictures still serve the plain name.
    const QString plain = QString::fromLatin1(name);
    const QIcon icon = QIcon::fromTheme(plain);
    return icon.isNull() ? QIcon::fromTheme(plain + QStringLiteral("-symbolic")) : icon;
}

} // namespace zt
