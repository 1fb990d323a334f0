#include "colours.h"

#include "platform/commondialog.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QComboBox>

namespace zt {

namespace {

// The picker's colour, or 0 when none was taken.
quint32 pickedColour(CommonDialog& comdlg) {
    comdlg.showColor();
    return comdlg.color;
}

} // namespace

QString hexColour(quint32 bgr) {
    const QString p = vb::Right(QStringLiteral("00000") + vb::Hex(bgr), 6);
    return QStringLiteral("#") + vb::Mid(p, 5, 2) + vb::Mid(p, 3, 2) + vb::Mid(p, 1, 2);
}

void pickHexColour(CommonDialog& comdlg, TextLineView& txtColour) {
    const quint32 c = pickedColour(comdlg);
    if (c == 0)
        return;
    txtColour.setBackColor(c);
    txtColour.control().setText(hexColour(c));
}

void pickHexColour(CommonDialog& comdlg, QComboBox& colours) {
    const quint32 c = pickedColour(comdlg);
    colours.setEditText(c == 0 ? QString() : hexColour(c));
}

const QStringList& namedColours() {
    static const QStringList names{
        QStringLiteral("aqua"),    QStringLiteral("black"),  QStringLiteral("blue"),
        QStringLiteral("fuchsia"), QStringLiteral("gray"),   QStringLiteral("green"),
        QStringLiteral("lime"),    QStringLiteral("maroon"), QStringLiteral("navy"),
        QStringLiteral("olive"),   QStringLiteral("purple"), QStringLiteral("red"),
        QStringLiteral("silver"),  QStringLiteral("teal"),   QStringLiteral("white"),
        QStringLiteral("yellow")};
    return names;
}

} // namespace zt
