#pragma once

#include <QString>

namespace zt {

// What the form dialog holds when OK is pressed. Every attribute is written, an
// empty one too, as it stands.
struct FormValues {
    QString name{};
    QString method = QStringLiteral("Get");
    QString action{};
    QString target = QStringLiteral("_self");
};

// A form with a submit button in a body, for the caller:
// - "comp": `<body><form name=".." method=".." action=".." target=".."><input
//   type="submit" name="submit"></form></body>`, whole;
// - "edit": the same less its first 6 and last 7 characters, the body tags;
// - "jsc": whole, with ` >` closing the form tag, so that the console finds it.
// Another caller gets the whole text, which it is never given.
QString formElement(const FormValues& values, const QString& callerMode);

} // namespace zt
