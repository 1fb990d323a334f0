#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class TextEditView;

// The Temporary Clipboard of the source view: snippets kept beside the system
// clipboard for the run (Close only hides the window), pasted back at the caret of
// the source text.
class TempClip : public Form {
public:
    explicit TempClip(FormRegistry& forms);
    ~TempClip() override;

    void load() override;

    // Adds a snippet as the last row.
    void addItem(const QString& text);
    // The snippet of a row, breaks and all.
    QString itemText(int row) const;

    void listClip_Click();
    // Something dropped on the list makes the display box's selection a row.
    void listClip_DragDrop();
    void btnPaste_Click();
    void btnRemove_Click();
    void btnClear_Click();
    void CancelButton_Click();
    void btnHelp_Click();

    struct Ui {
        QListWidget* listClip = nullptr;
        TextControl txtClip;
        TextEditView* txtClipView = nullptr;
        QPushButton* btnPaste = nullptr;
        QPushButton* btnRemove = nullptr;
        QPushButton* btnClear = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;
};

} // namespace zt
