#pragma once

#include <QString>

namespace zt {

// One border as its fields hold it: a type from the list, a bare thickness and a
// colour, any of them empty.
struct BorderFields {
    QString type;
    QString thickness;
    QString colour;
};

// What the Box Properties dialog holds at OK.
struct LayoutBoxValues {
    QString name;
    QString background;
    // The sides one by one, else all four alike.
    bool individual = false;
    BorderFields all;
    BorderFields left;
    BorderFields right;
    BorderFields top;
    BorderFields bottom;
};

// The types every border list offers, in their order.
const QStringList& borderTypes();

// A new box for the layout, on one line: the four borders, then a size of 40 by 30
// pixels at the box's own place whatever was entered, as only dragging sizes it.
// A side of its own is written thickness first, the shared fields type first; the
// two orders are the dialog's and both stay. Empty fields keep their blanks.
QString layoutBox(const LayoutBoxValues& values);

} // namespace zt
