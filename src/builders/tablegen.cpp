#include "tablegen.h"

#include "platform/runtimefailure.h"
#include "platform/vbstrings.h"

namespace zt {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// The loops read the count again at each pass and hold their counters in 16 bits,
// so a count beyond 32767 overflows the counter before the loop can end.
bool below(int counter, const QString& count) {
    const double limit = vb::CDbl(count);
    if (limit > 32767)
        throw RuntimeFailure::overflow();
    return counter < limit;
}

// `   <td> {filler}</td>` for every column of one row, each line ended.
QString cells(const QString& cols, const QString& fillerStem, int row, bool empty) {
    QString text;
    for (int col = 0; below(col, cols); ++col) {
        text += QStringLiteral("   <td> ");
        if (!empty)
            text += fillerStem + QStringLiteral("Row ") + QString::number(row + 1) +
                    QStringLiteral(" Col ") + QString::number(col + 1);
        text += QStringLiteral("</td>") + kCrLf;
    }
    return text;
}

QString attribute(const QString& name, const QString& value) {
    return QStringLiteral(" ") + name + QStringLiteral("=\"") + value + QStringLiteral("\"");
}

QString styleItem(const StyleChoice& choice, const QString& property) {
    if (choice.row <= 0)
        return QString();
    return QStringLiteral(" ") + property + QStringLiteral(": ") + choice.text +
           QStringLiteral(";");
}

QString divOpening(const QString& align) {
    if (align == QLatin1String("Left"))
        return QStringLiteral("<div align=\"left\">") + kCrLf;
    if (align == QLatin1String("Centre"))
        return QStringLiteral("<div align=\"center\">") + kCrLf;
    if (align == QLatin1String("Right"))
        return QStringLiteral("<div align=\"right\">") + kCrLf;
    return QString();
}

} // namespace

QString tableMarkup(const TableValues& v) {
    QString tag = QStringLiteral("<TABLE") + attribute(QStringLiteral("border"), v.border);
    if (v.cellPadding != QLatin1String("0"))
        tag += attribute(QStringLiteral("cellpadding"), v.cellPadding);
    if (v.cellSpacing != QLatin1String("0"))
        tag += attribute(QStringLiteral("cellspacing"), v.cellSpacing);
    if (!v.colour.isEmpty())
        tag += attribute(QStringLiteral("bgcolor"), v.colour);
    if (v.specifyWidth)
        tag += attribute(QStringLiteral("width"),
                         v.width + (v.pixels ? QString() : QStringLiteral("%")));
    const QString style = styleItem(v.borderCollapse, QStringLiteral("border-collapse")) +
                          styleItem(v.captionSide, QStringLiteral("caption-side")) +
                          styleItem(v.emptyCells, QStringLiteral("empty-cells")) +
                          styleItem(v.tableLayout, QStringLiteral("table-layout"));
    if (!style.isEmpty())
        tag += attribute(QStringLiteral("style"), style);
    tag += QStringLiteral(">");
    if (!v.caption.isEmpty())
        tag += QStringLiteral("<caption>") + v.caption + QStringLiteral("</caption>");

    for (int row = 0; below(row, v.rows); ++row) {
        tag += kCrLf + kCrLf + QStringLiteral("<tr>") + kCrLf;
        tag += cells(v.cols, QString(), row, v.emptyTable);
        tag += QStringLiteral("</tr>");
    }
    tag += kCrLf + QStringLiteral("</TABLE>");

    const QString open = divOpening(v.align);
    if (open.isEmpty())
        return tag;
    return open + tag + kCrLf + QStringLiteral("</div>");
}

QString rowsMarkup(const RowValues& v) {
    QString text;
    for (int row = 0; below(row, v.rows); ++row) {
        if (!text.isEmpty())
            text += kCrLf + kCrLf;
        text += QStringLiteral("<tr bgcolor=\"") + v.colour + QStringLiteral("\">") + kCrLf;
        text += cells(v.cols, QStringLiteral("New "), row, v.emptyTable);
        text += QStringLiteral("</tr>");
    }
    return text;
}

QString gridTableMarkup(int index, bool forVisualView) {
    const QString digits = QString::number(index);
    const int rows = digits.left(1).toInt() + 1;
    const int cols = digits.right(1).toInt() + 1;
    const QString cell =
        forVisualView ? QStringLiteral("&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;") : QStringLiteral(" ");
    QString text = QStringLiteral("<TABLE border=1>");
    for (int row = 0; row < rows; ++row) {
        text += kCrLf + QStringLiteral("<tr>") + kCrLf;
        for (int col = 0; col < cols; ++col)
            text += QStringLiteral("   <td>") + cell + QStringLiteral("</td>") + kCrLf;
        text += QStringLiteral("</tr>");
    }
    return text + kCrLf + QStringLiteral("</TABLE>");
}

} // namespace zt
