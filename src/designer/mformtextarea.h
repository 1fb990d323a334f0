#pragma once

#include "builders/elementdialog.h"
#include "builders/fieldparts.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QPushButton;

namespace zt {

class TextEditView;
class TextLineView;

// Insert Text Area for the designer's strip. Unlike the views' text area it has the
// text box's style panel, written as one `style` attribute, which Advanced shows by
// growing the window.
class MformTextArea : public ElementDialog {
public:
    explicit MformTextArea(FormRegistry& forms);
    ~MformTextArea() override;

    // Fills the font list.
    void load() override;
    void accept() override;

    void chkAdvanced_Click();

    struct Ui : StylePanel {
        explicit Ui(Pickers& pickers) : StylePanel(pickers) {}

        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtWidth;
        TextLineView* txtWidthView = nullptr;
        TextControl txtLines;
        TextLineView* txtLinesView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        TextControl txtDefault;
        TextEditView* txtDefaultView = nullptr;
        QCheckBox* chkAdvanced = nullptr;
        QCheckBox* chkBorder = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
