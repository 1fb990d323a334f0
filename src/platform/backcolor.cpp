#include "backcolor.h"

#include <QApplication>
#include <QPalette>
#include <QVariant>
#include <QWidget>

namespace zt {

namespace {

constexpr const char* kProperty = "BackColor";

// The role of the desktop's palette that shows a system colour as a background: a
// deeper grey for the 3-D light face, which marks the chosen one of a row of buttons,
// white for the highlight, and the plain button face for any other.
QPalette::ColorRole roleOf(quint32 colour) {
    switch (colour) {
    case syscolour::k3DLight:
        return QPalette::Mid;
    case syscolour::k3DHighlight:
        return QPalette::Light;
    default:
        return QPalette::Button;
    }
}

} // namespace

void setBackColor(QWidget& widget, quint32 colour) {
    widget.setProperty(kProperty, QVariant::fromValue(colour));
    QPalette palette = widget.palette();
    const QColor shown = QApplication::palette().color(roleOf(colour));
    palette.setColor(QPalette::Button, shown);
    palette.setColor(QPalette::Window, shown);
    widget.setPalette(palette);
}

quint32 backColor(const QWidget& widget) {
    return widget.property(kProperty).value<quint32>();
}

} // namespace zt
