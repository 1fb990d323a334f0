#include "modapi.h"

#include "platform/form.h"

#include <QGuiApplication>
#include <QScreen>
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
    QWidget* window = form.window();
    if (!window)
        return;
    QRect area;
    if (owner && owner->isVisible())
        area = owner->window()->frameGeometry();
    else if (const QScreen* screen = QGuiApplication::primaryScreen())
        area = screen->availableGeometry();
    else
        return;
    QRect place(QPoint(), window->frameGeometry().size());
    place.moveCenter(area.center());
    window->move(place.topLeft());
}

} // namespace zt
