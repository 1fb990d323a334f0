#pragma once

#include <QString>

namespace zt {

// What the image dialog holds when Insert is pressed.
struct ImageValues {
    QString source{};
    QString alt{};
    // Height and width take part only when dimensions are given.
    bool dimensions = false;
    QString height{};
    bool heightPercent = false;
    QString width{};
    bool widthPercent = false;
    QString align = QStringLiteral("Left");
    QString border = QStringLiteral("0");
};

// `<IMG{src}{align}{border}{height}{width}{alt}>`. The source is always written,
// an empty alignment, border or alternate text is left out, and the border's
// attribute keeps its capital B.
QString imageTag(const ImageValues& values);

} // namespace zt
