#include "fieldgen.h"

namespace zt {

namespace {

// ` key="value"`, or nothing for an empty value.
QString attribute(const char* key, const QString& value) {
    if (value.isEmpty())
        return {};
    return QStringLiteral(" %1=\"%2\"").arg(QLatin1String(key), value);
}

// A colour or font the user set to "none" is left out.
bool given(const QString& text) {
    return text != QLatin1String("none");
}

} // namespace

QString inputTag(const InputValues& v) {
    QString tag = QStringLiteral("<INPUT type=\"") + v.type + u'"';
    tag += QStringLiteral(" name=\"") + v.name + u'"';
    tag += attribute("value", v.value);
    tag += attribute("size", v.size);
    tag += attribute("maxlength", v.maxLength);
    tag += attribute("tabindex", v.tabIndex);
    if (v.readOnly)
        tag += QStringLiteral(" readonly=\"readonly\"");
    if (v.checked)
        tag += QStringLiteral(" checked");
    return tag + v.style + u'>';
}

QString textboxStyle(const TextboxStyle& s) {
    QString css;
    if (given(s.colour))
        css += QStringLiteral("color:") + s.colour + u';';
    if (given(s.background))
        css += s.backgroundProperty + u':' + s.background + u';';
    css += QStringLiteral("font-family:") + s.font + u';';
    css += QStringLiteral("font-size:") + s.fontSize + u';';
    if (s.bold)
        css += QStringLiteral("font-weight:bold;");
    if (s.italic)
        css += QStringLiteral("font-style:italic;");
    return QStringLiteral("style=\"") + css + u'"';
}

QString textAreaTag(const TextAreaValues& v) {
    QString tag = QStringLiteral("<TEXTAREA name=\"") + v.name + u'"';
    tag += attribute("cols", v.cols);
    tag += attribute("rows", v.rows);
    tag += attribute("tabindex", v.tabIndex);
    tag += v.style;
    if (v.useStyle) {
        if (given(v.colour))
            tag += QStringLiteral(" style=\"color:") + v.colour + u'"';
        if (given(v.background))
            tag += QStringLiteral(" style=\"background:") + v.background + u'"';
        // The property's name is kept as the dialog has always written it.
        if (v.border)
            tag += QStringLiteral(" style=\"border style:solid\"");
        if (given(v.font))
            tag += QStringLiteral(" style=\"font-family:") + v.font + u'"';
    }
    if (v.forConsole)
        tag += u' ';
    return tag + QStringLiteral(">\r\n") + v.text + QStringLiteral("\r\n</TEXTAREA>");
}

QString hiddenTag(const QString& name, const QString& value) {
    return QStringLiteral("<input type=\"hidden\" value=\"") + value +
           QStringLiteral("\" name=\"") + name + QStringLiteral("\">");
}

QString fieldsetTag(const QString& caption, const QString& align) {
    if (caption.isEmpty())
        return QStringLiteral("<FIELDSET> </FIELDSET>");
    return QStringLiteral("<FIELDSET><LEGEND align=\"") + align + QStringLiteral("\">") + caption +
           QStringLiteral("</LEGEND> </FIELDSET>");
}

} // namespace zt
