#include "boxgen.h"

#include <QStringList>

namespace zt {

const QStringList& borderTypes() {
    static const QStringList types{"solid", "dotted", "dashed", "double", "groove",
                                   "ridge", "inset",  "outset", "none"};
    return types;
}

QString layoutBox(const LayoutBoxValues& v) {
    const struct {
        const char* side;
        const BorderFields& own;
    } sides[] = {{"LEFT", v.left}, {"RIGHT", v.right}, {"TOP", v.top}, {"BOTTOM", v.bottom}};
    QString borders;
    for (const auto& s : sides) {
        const QString declaration = v.individual
                                        ? s.own.thickness + ' ' + s.own.type + ' ' + s.own.colour
                                        : v.all.type + ' ' + v.all.thickness + ' ' + v.all.colour;
        borders += QStringLiteral("BORDER-%1: %2;").arg(QLatin1String(s.side), declaration);
    }
    return QStringLiteral(R"(<div id="%1" style="%2WIDTH: 40px; POSITION: relative; TOP: 0px; )"
                          R"(HEIGHT: 30px; BACKGROUND-COLOR: %3">New Layout Box</div>)")
        .arg(v.name, borders, v.background);
}

} // namespace zt
