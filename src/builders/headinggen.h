#pragma once

#include <QString>

namespace zt {

// What the heading dialog holds when it is accepted.
struct HeadingValues {
    int level = 1;
    QString align{};
    QString text{};
};

// `<H{n} align="{align}">{text}</H{n}>`. The alignment is always written, an empty
// one and "Left" too, and an empty text makes an empty heading.
QString headingTag(const HeadingValues& values);

} // namespace zt
