#include "spinarrows.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace zt {

Field spinArrows(const char* name, SpinArrows& arrows, std::function<void(int step)> spin,
                 const QString& unit) {
    return widget(name, [&arrows, spin = std::move(spin), unit](QWidget* parent) {
        auto* box = new QWidget(parent);
        auto* row = new QHBoxLayout(box);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(2);
        if (!unit.isEmpty())
            row->addWidget(new QLabel(unit, box));
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        row->addLayout(column);
        const auto arrow = [&](QToolButton*& button, Qt::ArrowType type, int step) {
            button = new QToolButton(box);
            button->setArrowType(type);
            button->setAutoRepeat(true);
            button->setFixedSize(18, 12);
            button->setFocusPolicy(Qt::NoFocus);
            column->addWidget(button);
            onClick(button, [spin, step] { spin(step); });
        };
        arrow(arrows.up, Qt::UpArrow, 1);
        arrow(arrows.down, Qt::DownArrow, -1);
        return box;
    });
}

} // namespace zt
