#pragma once

#include <QtGlobal>

class QWidget;

namespace zt {

// The background of a control as a form sets it: a colour of the desktop's scheme,
// named by its system colour number, which the form may read back to learn a state
// it keeps in the colour.
namespace syscolour {
constexpr quint32 kTitleBarText = 0x80000009;
constexpr quint32 k3DHighlight = 0x80000014;
constexpr quint32 k3DLight = 0x80000016;
} // namespace syscolour

void setBackColor(QWidget& widget, quint32 colour);
// The number last set; 0 for a widget the program never coloured.
quint32 backColor(const QWidget& widget);

} // namespace zt
