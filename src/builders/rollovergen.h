#pragma once

#include <QString>

namespace zt {

// What the rollover dialog holds when Insert is pressed.
struct RolloverValues {
    QString name{};
    QString firstImage{};
    QString secondImage{};
    QString link{};
};

// The script block that swaps and preloads the images, once per page: 41 lines,
// each ended by CR LF, blanks at the line ends kept.
const QString& rolloverScript();

// The whole page rewritten around one more rollover link. A page without a head or a
// body gets them; the script block goes in after `<head>` unless the page already
// holds it whole; the body's onLoad preloads the second image, a call already there
// taking it as one more argument. The link goes in at a position that starts at the
// top of the page and moves only by the length of the head and body just added, so
// on a page that had both it stands ahead of `<html>`.
//
// Every position is a 16-bit number: a page longer than 32767 characters fails with
// an overflow, and an onLoad with no `)` after it with an invalid property value.
QString rolloverPage(const QString& page, const RolloverValues& values);

} // namespace zt
