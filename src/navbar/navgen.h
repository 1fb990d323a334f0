#pragma once

#include <QString>
#include <QStringList>

// The navigation bar's text: a style sheet made from a fixed template by putting the
// user's values in place of its placeholder words, and the bar of links that the
// style sheet dresses.
namespace zt {

// What the user set for the bar and for each state of its links. Each member stands
// for the template's placeholder of the same name with "get" in front.
struct NavStyle {
    QString basicColour{}, basicBorderColour{}, basicBGColour{};
    QString linkBorderType{}, linkThickness{}, linkColour{}, lColour{}, bgColour{};
    QString linkABorderType{}, aLinkThickness{}, aLinkColour{}, aColour{}, abgColour{};
    QString linkHBorderType{}, hLinkThickness{}, hLinkColour{}, hColour{}, hbgColour{};
    QString linkVBorderType{}, vLinkThickness{}, vLinkColour{}, vColour{}, vbgColour{};
};

// The template: the style element, then a sample bar of six links that makes the
// preview look like a bar. Every line ends in CR LF.
const QString& navTemplate();

// The template with each placeholder replaced by its value, one whole-text
// replacement after the other in a fixed order. Nothing is checked: an empty value
// leaves nothing in its place, and a value that spells a placeholder later in the
// order is replaced in its turn.
QString navCode(const NavStyle& style);

// The code up to and with the first "</style>", which drops the sample bar. Code
// without it keeps its first 7 characters.
QString navStyleBlock(const QString& code);

// The bar: one list item per point, linked to the address of the same row, as typed.
QString navBar(const QStringList& points, const QStringList& urls);

// Where the style block goes in the source text: just behind its first "<head>", in
// any case; at 5 when there is none.
int navStylePosition(const QString& text);

} // namespace zt
