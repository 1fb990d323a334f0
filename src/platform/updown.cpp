#include "updown.h"

#include "textcontrol.h"
#include "vbstrings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace zt {

Field upDown(const char* name, UpDown& arrows, std::function<void(int step)> step,
             const QString& unit) {
    return widget(name, [&arrows, step, unit](QWidget* parent) {
        auto* pair = new QWidget(parent);
        auto* row = new QHBoxLayout(pair);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(2);
        if (!unit.isEmpty())
            row->addWidget(new QLabel(unit, pair));
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        row->addLayout(column);
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
