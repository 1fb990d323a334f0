#include "updown.h"

#include "textcontrol.h"
#include "vbstrings.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace zt {

Field upDown(const char* name, UpDown& arrows, std::function<void(int step)> step) {
    return widget(name, [&arrows, step](QWidget* parent) {
        auto* pair = new QWidget(parent);
        auto* column = new QVBoxLayout(pair);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        const auto arrow = [&](QToolButton*& button, Qt::ArrowType type, int by) {
            button = new QToolButton(pair);
            button->setArrowType(type);
            button->setAutoRepeat(true);
            button->setFixedSize(18, 12);
            button->setFocusPolicy(Qt::NoFocus);
            column->addWidget(button);
            onClick(button, [step, by] { step(by); });
        };
        arrow(arrows.up, Qt::UpArrow, 1);
        arrow(arrows.down, Qt::DownArrow, -1);
        return pair;
    });
}

void stepNumber(TextControl& field, int step) {
    const double value = vb::CDbl(field.text());
    if (step > 0 || value > 0)
        field.setText(vb::CStr(value + step));
}

} // namespace zt
