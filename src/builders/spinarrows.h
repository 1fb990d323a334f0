#pragma once

#include "platform/dialogparts.h"

class QToolButton;

namespace zt {

// The two arrows beside a number field, as an UpDown control has them.
struct SpinArrows {
    QToolButton* up = nullptr;
    QToolButton* down = nullptr;
};

// The arrows as a row of a dialog's table, after the field's unit when it has one.
// A click, or holding an arrow down, runs spin with +1 or -1.
Field spinArrows(const char* name, SpinArrows& arrows, std::function<void(int step)> spin,
                 const QString& unit = {});

} // namespace zt
