#pragma once

#include <QString>

namespace zt {

// One of the table dialog's advanced lists: its selected row and that row's text.
// Row 0 ("collapse", "top", "show", "auto") writes nothing, as no selection does.
struct StyleChoice {
    int row = -1;
    QString text{};
};

// What the table dialog holds when it is accepted. The counts stay text: they are
// read as numbers at every pass of the loops, so "2.5" makes three rows.
struct TableValues {
    QString rows = QStringLiteral("2");
    QString cols = QStringLiteral("2");
    QString cellPadding = QStringLiteral("0");
    QString cellSpacing = QStringLiteral("0");
    QString border = QStringLiteral("1");
    QString align = QStringLiteral("Default");
    bool specifyWidth = true;
    QString width = QStringLiteral("100");
    bool pixels = false;
    QString colour{};
    bool emptyTable = false;
    StyleChoice borderCollapse{}, captionSide{}, emptyCells{}, tableLayout{};
    // Border spacing is asked for but never written.
    QString spacing1{}, spacing2{};
    QString caption{};
};

// `{divopen}<TABLE ...>{caption}{rows}{CRLF}</TABLE>{divclose}`. An empty or
// non-numeric count fails with 13, a count beyond 32767 with 6.
QString tableMarkup(const TableValues& values);

// What the Insert Rows dialog holds when it is accepted.
struct RowValues {
    QString rows = QStringLiteral("2");
    QString cols = QStringLiteral("2");
    QString colour = QStringLiteral("none");
    bool emptyTable = false;
};

// Rows alone, each `<tr bgcolor="{colour}">` with its cells; no table tag.
QString rowsMarkup(const RowValues& values);

// The visual grid's table for a click on cell `index` (0 to 99). The counts come
// from the index's decimal digits, first and last, so a cell of the first grid row
// gives as many rows as columns. For the visual view the cells hold five &nbsp;.
QString gridTableMarkup(int index, bool forVisualView);

} // namespace zt
