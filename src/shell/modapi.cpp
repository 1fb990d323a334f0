#include "modapi.h"

#include "platform/form.h"

#include <QWidget>

namespace zt {

void stayOnTop(Form& form) {
    QWidget* window = form.window();
    if (!window || window->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        return;
    // Changing a window's flags makes Qt re-create it hidden; put back what the
    // user could see of it.
    const QRect place = window->geometry();
    const bool visible = window->isVisible();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    window->setGeometry(place);
    if (visible)
        window->show();
}

void centreOver(Form& form, const Form* owner) {
    form.placeOver(owner && owner->isVisible() ? owner->window() : nullptr);
}

} // namespace zt
