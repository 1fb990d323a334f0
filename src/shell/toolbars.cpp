#include "commandmap.h"

#include "tessara.h"
#include "zelvo.h"

namespace zt {

const std::vector<ToolKey<Zelvo>>& zelvoToolKeys() {
    using Z = Zelvo;
    static const std::vector<ToolKey<Z>> keys{
        {"New", "New", "document-new", false, &Z::mnuew},
        {"Open", "Open", "document-open", false, &Z::mnuOpen},
        {"Save", "Save", "document-save", false, &Z::mnuSave},
        {"Forward", "Preview", "document-print-preview", false, &Z::mnuPreview},
        {"Print", "Print", "document-print", false, &Z::mnuPrint},
        {"Copy", "Copy", "edit-copy", true, &Z::mnuCopy},
        {"Cut", "Cut", "edit-cut", false, &Z::mnuCut},
        {"Paste", "Paste", "edit-paste", false, &Z::mnuPaste},
        {"Delete", "Delete", "edit-delete", false, &Z::deleteKey},
        {"Bold", "Bold", "format-text-bold", true, &Z::mnubold},
        {"Italic", "Italic", "format-text-italic", false, &Z::mnuitalics},
        {"Underline", "Underline", "format-text-underline", false, &Z::mnuUnderline},
        {"Align Left", "Align Left", "format-justify-left", true, &Z::mnuALeft},
        {"Center", "Center", "format-justify-center", false, &Z::mnuACenter},
        {"Align Right", "Align Right", "format-justify-right", false, &Z::mnuARight},
        {"Find", "Find", "edit-find", true, &Z::showFindMe},
        {"btnOpenTessara", "Open Tessara", "text-html", true, &Z::mnuTessara},
    };
    return keys;
}

const std::vector<ToolKey<Tessara>>& tessaraToolKeys() {
    using T = Tessara;
    static const std::vector<ToolKey<T>> keys{
        {"New", "New", "document-new", false, &T::mnuNew},
        {"Open", "Open", "document-open", false, &T::mnuOpen},
        {"Save", "Save", "document-save", false, &T::mnuSave},
        {"Forward", "Preview", "document-print-preview", false, &T::mnuPrev},
        {"Print", "Print", "document-print", false, &T::mnuPrint},
        {"Copy", "Copy", "edit-copy", true, &T::mnuCopy},
        {"Cut", "Cut", "edit-cut", false, &T::mnuCut},
        {"Paste", "Paste", "edit-paste", false, &T::mnuPaste},
        {"Delete", "Delete", "edit-delete", false, &T::mnuDelete},
        {"Undo", "Undo", "edit-undo", true, &T::mnuUndo},
        {"Redo", "Redo", "edit-redo", false, &T::mnuRedo},
        {"Bold", "Bold", "format-text-bold", true, &T::mnuBold},
        {"Italic", "Italic", "format-text-italic", false, &T::mnuItalics},
        {"Underline", "Underline", "format-text-underline", false, &T::mnuUnderline},
        {"Align Left", "Align Left", "format-justify-left", true, &T::mnuAlignLeft},
        {"Center", "Center", "format-justify-center", false, &T::mnuAlignCentre},
        {"Align Right", "Align Right", "format-justify-right", false, &T::mnuAlignRight},
        {"Find", "Find", "edit-find", true, &T::mnuFind},
        {"Properties", "Properties", "document-properties", true, &T::mnuPageProps},
        {"showCode", "Open Editor", "text-x-generic", true, &T::mnuEditor},
    };
    return keys;
}

// The indent buttons are crossed on purpose: btnIndent runs Outdent and btnOutdent
// runs Indent, and the visual view's tips and status texts go with the crossing.
const std::vector<FormatButton<Zelvo>>& zelvoFormatButtons() {
    using Z = Zelvo;
    using U = Zelvo::Ui;
    static const std::vector<FormatButton<Z>> buttons{
        {&U::btnTools, "btnTools", "Tools", "", "applications-utilities", "Tools", nullptr,
         &U::mnuTools},
        {&U::btnColourPicker, "btnColourPicker", "Colour Picker: Handy Colour Picking Tool", "",
         "color-select", "Colour", &Z::mnuColourPicker},
        {&U::btnSpell, "btnSpell", "", "", "tools-check-spelling", "Spell", &Z::mnuSpell},
        {&U::btnForm, "btnForm", "", "", "insert-object", "Form", nullptr, &U::mnuForm},
        {&U::btnTable, "btnTable", "Insert Table", "", "view-grid", "Table", nullptr, &U::mnutable},
        {&U::btnRule, "btnRule", "Insert Horizontal Rule", "", "list-remove", "Rule", &Z::mnuHR},
        {&U::btnImage, "btnImage", "Insert Image", "", "insert-image", "Image", &Z::mnuImage},
        {&U::btnHighlight, "btnHighlight", "Hihlight Selected Text", "", "format-text-rich",
         "Highlight", &Z::mnuHighlight},
        {&U::btnFont, "btnFont", "Font", "", "font-select", "Font", &Z::mnuFont},
        {&U::btnLinks, "btnLinks", "Insert Hyperlink", "", "insert-link", "Link", &Z::mnuHyperlink},
        {&U::btnBullets, "btnBullets", "Bullets", "", "view-list-bullet", "Bullets",
         &Z::mnuBullets},
        {&U::btnNumbering, "btnNumbering", "Numbering", "", "view-list-ordered", "Numbering",
         &Z::mnuNumbering},
        {&U::btnIndent, "btnIndent", "", "", "format-indent-more", "Indent", &Z::mnuOutdent},
        {&U::btnOutdent, "btnOutdent", "", "", "format-indent-less", "Outdent", &Z::mnuIndent},
        {&U::btnShowTempClip, "btnShowTempClip", "Show Temporary Clipboard", "", "edit-paste",
         "Clips", &Z::mnuShowTempClip},
        {&U::btnCopyTempClip, "btnCopyTempClip", "Copy to temporary clipboard", "", "edit-copy",
         "Clip", &Z::mnuCopyToTemp},
    };
    return buttons;
}

const std::vector<FormatButton<Tessara>>& tessaraFormatButtons() {
    using T = Tessara;
    using U = Tessara::Ui;
    static const std::vector<FormatButton<T>> buttons{
        {&U::btnTools, "btnTools", "Tools", "", "applications-utilities", "Tools", nullptr,
         &U::mnuTools},
        {&U::btnColourPicker, "btnColourPicker", "Colour Picker: Handy Colour Picking Tool", "",
         "color-select", "Colour", &T::mnuColourPicker},
        {&U::btnSpell, "btnSpell", "Spell Check Document", "", "tools-check-spelling", "Spell",
         &T::mnuSpellCheck},
        {&U::btnForm, "btnForm", "", "Insert Form and form elements such as textbox, button etc.",
         "insert-object", "Form", nullptr, &U::mnuForm},
        {&U::remFormatting, "remFormatting", "Remove Formatting",
         "Remove formatting (such as bold, etc.) of selected text", "edit-clear", "Plain",
         &T::mnuRemFormat},
        {&U::btnHighlight, "btnHighlight", "Highlight Text", "Highlight selected text",
         "format-text-rich", "Highlight", &T::mnuHighlight},
        {&U::btnBullets, "btnBullets", "Bullets", "Create a Bulleted/Unordered List",
         "view-list-bullet", "Bullets", &T::mnuBullets},
        {&U::btnNumbering, "btnNumbering", "Numbering", "Create a Numbered/Ordered list",
         "view-list-ordered", "Numbering", &T::mnuNumbering},
        {&U::btnOutdent, "btnOutdent", "Indent text", "Outdent Delected", "format-indent-less",
         "Outdent", &T::mnuIndent},
        {&U::btnIndent, "btnIndent", "Outdent text", "Indent Selected", "format-indent-more",
         "Indent", &T::mnuOutdent},
        {&U::btnTable, "btnTable", "Insert Table", "Create Table", "view-grid", "Table", nullptr,
         &U::mnuTable},
        {&U::btnRule, "btnRule", "Insert Horizontal Rule", "Insert Horizontal Rule", "list-remove",
         "Rule", &T::mnuRule},
        {&U::btnImage, "btnImage", "Insert Image", "Insert Image/Picture", "insert-image", "Image",
         &T::btnImage_Click},
        {&U::btnFont, "btnFont", "Font", "Change Font Properties", "font-select", "Font",
         &T::btnFont_Click},
        {&U::btnLinks, "btnLinks", "Insert Hyperlink", "Insert Hyperlink", "insert-link", "Link",
         &T::mnuLink},
    };
    return buttons;
}

} // namespace zt
