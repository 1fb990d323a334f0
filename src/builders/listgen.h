#pragma once

#include <QString>
#include <QStringList>

namespace zt {

// What the bullets dialog holds when Insert is pressed.
struct BulletValues {
    // Which option is on; with neither the tag has no name at all.
    enum Kind { Neither, Bullets, Numbering } kind = Neither;
    QString type{};
    // Written whenever it is filled in, also on a bulleted list.
    QString start{};
    QStringList points{};
};

// `<{UL|OL} style="list-style-type: {type};"{ start=n}>` CR LF, then `<LI>{point}`
// CR LF per point, with no closing tag, and the closing tag. A list without
// points gets one point "a", so it is never empty.
QString bulletList(const BulletValues& values);

// The attributes a selection list takes from its fields.
struct SelectValues {
    QString name{};
    QString size{};
    QString tabIndex{};
    bool multiple = false;
};

// `<SELECT name={name}{ size=n}{ tabindex="n"}{ MULTIPLE}>` CR LF, then `<OPTION>{point}`
// CR LF per point, with no closing tag, and `</SELECT>`. The name and size go
// without quotes.
QString selectList(const SelectValues& values, const QStringList& points);

// A selection list inside a form that goes to the address of the chosen point:
// `<body><form><SELECT...` with an onchange script naming the list, CR LF, then
// `<OPTION value="{url}">{point}</OPTION>` CR LF per point, and
// `</SELECT></form></body>`. points and urls go row for row.
QString linkedList(const SelectValues& values, const QStringList& points, const QStringList& urls);

} // namespace zt
