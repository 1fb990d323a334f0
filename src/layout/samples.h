#pragma once

#include <QPixmap>
#include <QString>

namespace zt {

// The four sample layouts of the Layout Manager, 1 to 4: a left column with the main
// area, its mirror image, three columns, and one wide column, each under a banner
// with a logo and a navigation strip and over a footer. Each is the text the engine
// once wrote for a drawn page, kept as it was.
const QString& sampleLayout(int n);

// A small picture of a layout: its positioned boxes drawn where they stand, scaled
// down to size, in the order of their z-index. A layout without boxes gives a blank
// page.
QPixmap layoutThumbnail(const QString& layout, QSize size);

} // namespace zt
