#pragma once

#include "dialogparts.h"

#include <functional>

class QToolButton;

namespace zt {

// The UpDown control: two small arrows beside a number field. A click on an arrow,
// repeated while it is held, runs step with +1 for up and -1 for down; what that
// does to the field is the dialog's.
struct UpDown {
    QToolButton* up = nullptr;
    QToolButton* down = nullptr;
};

// The arrows as a control of a dialog's table, placed Beside their field, after the
// field's unit when it has one.
Field upDown(const char* name, UpDown& arrows, std::function<void(int step)> step,
             const QString& unit = {});

// The usual step: up adds one without limit, down takes one away only from a value
// above 0, and the number is written back as text. The field is read as a number,
// so one that holds none fails with 13, Type mismatch.
void stepNumber(TextControl& field, int step);

} // namespace zt
