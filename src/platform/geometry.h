#pragma once

namespace zt {

// The program's forms are laid out in twips, 15 to a pixel on a 96 dpi screen.
constexpr int twips(int t) {
    return t / 15;
}
constexpr int toTwips(int px) {
    return px * 15;
}

} // namespace zt
