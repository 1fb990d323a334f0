#pragma once

#include <QString>

// The form fields: one-line inputs of every type, the text area, the hidden field
// and the field set. Nothing typed is escaped or trimmed, so a double quote in a
// field ends its attribute.
namespace zt {

// One <INPUT> tag. The attributes stand in one fixed order; each dialog fills the
// ones it has, and an empty one is left out. The name is always written.
struct InputValues {
    QString type{};
    QString name{};
    QString value{};
    QString size{};
    QString maxLength{};
    QString tabIndex{};
    bool readOnly = false;
    bool checked = false;
    // A whole `style="..."` attribute or nothing; it follows the attribute before it
    // without a blank.
    QString style{};
};

// `<INPUT type="{type}" name=".." value=".." size=".." maxlength=".." tabindex=".."
// readonly="readonly" checked{style}>`.
QString inputTag(const InputValues& values);

// The style group of the text box dialog, and of the designer's text area.
struct TextboxStyle {
    QString colour = QStringLiteral("none");
    QString background = QStringLiteral("none");
    // The designer's text area writes the short property `background:`.
    QString backgroundProperty = QStringLiteral("background-color");
    QString font{};
    QString fontSize{};
    bool bold = false;
    bool italic = false;
};

// `style="color:..;{backgroundProperty}:..;font-family:..;font-size:..;font-weight:bold;
// font-style:italic;"`: a colour of "none" is left out, the font and its size never.
QString textboxStyle(const TextboxStyle& style);

struct TextAreaValues {
    QString name{};
    QString text{};
    QString cols{};
    QString rows{};
    QString tabIndex{};
    bool useStyle = false;
    QString colour = QStringLiteral("none");
    QString background = QStringLiteral("none");
    bool border = false;
    QString font{};
    // The designer's whole `style="..."` attribute, or nothing; like the text box's it
    // follows the attribute before it without a blank, and it stands for all of the
    // style properties above.
    QString style{};
    // For the console: ` >` ends the opening tag, so that event handlers can go in
    // before it.
    bool forConsole = false;
};

// `<TEXTAREA name=".." cols=".." rows=".." tabindex="..">` CR LF text CR LF
// `</TEXTAREA>`. Each style property is a `style` attribute of its own, so several
// may stand in one tag; "none" leaves a colour or the font out, an empty font does
// not.
QString textAreaTag(const TextAreaValues& values);

// `<input type="hidden" value=".." name="..">`: lower case, the value first and
// always written, even empty.
QString hiddenTag(const QString& name, const QString& value);

// `<FIELDSET><LEGEND align="..">caption</LEGEND> </FIELDSET>`, or without a caption
// `<FIELDSET> </FIELDSET>`; the blank is there for the user to type over.
QString fieldsetTag(const QString& caption, const QString& align);

} // namespace zt
