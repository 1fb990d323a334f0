#include "morvane.h"

namespace zt {

// Ctrl+F10 is left out of the Insert keys, as the designer has always had it.
const std::vector<MenuRow<morvane>>& morvaneMenus() {
    using M = morvane;
    using U = morvane::Ui;
    static const std::vector<MenuRow<M>> rows{
        {0, &U::mnuFile, "mnuFile", "&File"},
        {1, &U::mnuNew, "mnuNew", "New form", "Ctrl+N", Plain, &M::mnuNew},
        {1, &U::mnuOpen, "mnuOpen", "Open Form", "Ctrl+O", Plain, &M::mnuOpen},
        {1, &U::mnuSave, "mnuSave", "Save Form", "Ctrl+S", Plain, &M::mnuSave},
        {1, &U::mnuEditHTML, "mnuEditHTML", "Edit HTML", "", SeparatorBefore, &M::mnuEditHTML},
        {1, &U::mnuPreview, "mnuPreview", "Preview", "", Plain, &M::mnuPreview},
        {1, &U::mnuHTMLGen, "mnuHTMLGen", "Generate HTML Code", "F5", Plain, &M::mnuHTMLGen},
        {1, &U::mnuExit, "mnuExit", "Exit", "Ctrl+E", SeparatorBefore, &M::mnuExit},
        {0, &U::mnuEdit, "mnuEdit", "&Edit"},
        {1, &U::mnuCopy, "mnuCopy", "Copy", "Ctrl+C", Plain, &M::mnuCopy},
        {1, &U::mnuCut, "mnuCut", "Cut", "Ctrl+X", Plain, &M::mnuCut},
        {1, &U::mnuPaste, "mnuPaste", "Paste", "Ctrl+V", Plain, &M::mnuPaste},
        {1, &U::mnuDelete, "mnuDelete", "Delete", "Del", Plain, &M::mnuDelete},
        {1, &U::mnuUndo, "mnuUndo", "Undo", "Ctrl+Z", SeparatorBefore, &M::mnuUndo},
        {1, &U::mnuRedo, "mnuRedo", "Redo", "Ctrl+Y", Plain, &M::mnuRedo},
        {0, &U::mnuMormat, "mnuMormat", "F&ormat"},
        {1, &U::mnuBold, "mnuBold", "Bold", "Ctrl+B", Plain, &M::mnuBold},
        {1, &U::mnuItalics, "mnuItalics", "Italics", "Ctrl+I", Plain, &M::mnuItalics},
        {1, &U::mnuUnderline, "mnuUnderline", "Underline", "Ctrl+U", Plain, &M::mnuUnderline},
        {1, &U::mnuFont, "mnuFont", "Font", "", Plain, &M::mnuFont},
        {1, &U::mnuBoxProps, "mnuBoxProps", "Box properties", "", SeparatorBefore},
        {2, &U::mnuBoxBorder, "mnuBoxBorder", "Border Colour", "", Plain, &M::mnuBoxBorder},
        {2, &U::mnuBoxBGColour, "mnuBoxBGColour", "Background Colour", "", Plain,
         &M::mnuBoxBGColour},
        {0, &U::mnuInsert, "mnuInsert", "&Insert"},
        {1, &U::mnuLabel, "mnuLabel", "Label", "Ctrl+F1", Plain, &M::mnuLabel},
        {1, &U::mnuTextBox, "mnuTextBox", "Text Box", "Ctrl+F2", Plain, &M::mnuTextBox},
        {1, &U::mnuButton, "mnuButton", "Button", "Ctrl+F3", Plain, &M::mnuButton},
        {1, &U::mnuTextArea, "mnuTextArea", "Text Area", "Ctrl+F4", Plain, &M::mnuTextArea},
        {1, &U::mnuRadio, "mnuRadio", "Radio button", "Ctrl+F5", Plain, &M::mnuRadio},
        {1, &U::mnuCheckBox, "mnuCheckBox", "Check Box", "Ctrl+F6", Plain, &M::mnuCheckBox},
        {1, &U::mnuList, "mnuList", "List Box", "Ctrl+F7", Plain, &M::mnuList},
        {1, &U::mnuDropDown, "mnuDropDown", "Drop Down Box", "Ctrl+F8", Plain, &M::mnuDropDown},
        {1, &U::mnuFieldSet, "mnuFieldSet", "Fieldset", "Ctrl+F9", Plain, &M::mnuFieldSet},
        {1, &U::mnuBrowseBox, "mnuBrowseBox", "Browse box", "Ctrl+F11", Plain, &M::mnuBrowseBox},
        {1, &U::mnuHidden, "mnuHidden", "Hidden", "Ctrl+F12", Plain, &M::mnuHidden},
        {1, &U::mnuDrawing, "mnuDrawing", "Drawing", "", SeparatorBefore, &M::mnuDrawing},
        {0, &U::mnuHelp, "mnuHelp", "&Help"},
        {1, &U::help, "help", "Help", "F1", Plain, &M::help},
        {1, &U::mnuShowTip, "mnuShowTip", "Show Tip of the day", "", Plain, &M::mnuShowTip},
        {1, &U::mnuAbout, "mnuAbout", "About", "", SeparatorBefore, &M::mnuAbout},
    };
    return rows;
}

const std::vector<ToolKey<morvane>>& morvaneToolKeys() {
    using M = morvane;
    static const std::vector<ToolKey<M>> keys{
        {"New", "New", "document-new", false, &M::mnuNew},
        {"Open", "Open", "document-open", false, &M::mnuOpen},
        {"Save", "Save", "document-save", false, &M::mnuSave},
        {"Copy", "Copy", "edit-copy", true, &M::mnuCopy},
        {"Cut", "Cut", "edit-cut", false, &M::mnuCut},
        {"Paste", "Paste", "edit-paste", false, &M::mnuPaste},
        {"Delete", "Delete", "edit-delete", false, &M::mnuDelete},
        {"Undo", "Undo", "edit-undo", true, &M::mnuUndo},
        {"Redo", "Redo", "edit-redo", false, &M::mnuRedo},
        {"Bold", "Bold", "format-text-bold", true, &M::mnuBold},
        {"Italic", "Italic", "format-text-italic", false, &M::mnuItalics},
        {"Underline", "Underline", "format-text-underline", false, &M::mnuUnderline},
        {"Properties", "Box Properties", "document-properties", true, &M::showBoxProperties},
        {"Drawing", "Drawing", "insert-object", false, &M::mnuDrawing},
        {"Help", "Help", "help-browser", true, &M::help},
    };
    return keys;
}

// The tips of btnListBox and btnDropDown are crossed against what the buttons do,
// and stay so.
const std::vector<FormatButton<morvane>>& morvaneButtons() {
    using M = morvane;
    using U = morvane::Ui;
    static const std::vector<FormatButton<M>> buttons{
        {&U::btnLabel, "btnLabel", "Insert Label", "", "", "Label", &M::mnuLabel},
        {&U::btnText, "btnText", "Insert Text Box", "", "", "Text Box", &M::mnuTextBox},
        {&U::btnButton, "btnButton", "Insert a button", "", "", "Button", &M::mnuButton},
        {&U::btnTextArea, "btnTextArea", "Insert a text area", "", "", "Text Area",
         &M::mnuTextArea},
        {&U::btnRadio, "btnRadio", "Insert a radio button", "", "", "Radio Button", &M::mnuRadio},
        {&U::btnCheckBox, "btnCheckBox", "Insert a checkbox", "", "", "Check Box", &M::mnuCheckBox},
        {&U::btnListBox, "btnListBox", "Insert a drop down box", "", "", "List Box", &M::mnuList},
        {&U::btnDropDown, "btnDropDown", "Insert a listbox", "", "", "Drop Down Box",
         &M::mnuDropDown},
        {&U::btnFieldSet, "btnFieldSet", "Insert a fieldset", "", "", "Fieldset", &M::mnuFieldSet},
        {&U::btnFile, "btnFile", "Insert a browse button", "", "", "Browse Box", &M::mnuBrowseBox},
        {&U::btnHidden, "btnHidden", "Insert a hidden field", "", "", "Hidden Field",
         &M::mnuHidden},
        {&U::btnGenerate, "btnGenerate", "Generate The Code", "", "", "Generate The Code",
         &M::mnuHTMLGen},
    };
    return buttons;
}

} // namespace zt
