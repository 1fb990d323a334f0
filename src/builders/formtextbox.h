#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;

namespace zt {

class Pickers;
class TextLineView;

// Insert Text Box: a one-line text or password <INPUT>, with an optional style. Its
// opener gives it its caption. It does not float above other windows, and an empty
// name closes it after the warning.
class formTextbox : public ElementDialog {
public:
    explicit formTextbox(FormRegistry& forms);
    ~formTextbox() override;

    // Fills the font list.
    void load() override;
    void accept() override;

    struct Ui : StylePanel {
        explicit Ui(Pickers& pickers) : StylePanel(pickers) {}

        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtDefault;
        TextLineView* txtDefaultView = nullptr;
        TextControl txtMaxLen;
        TextLineView* txtMaxLenView = nullptr;
        TextControl txtSize;
        TextLineView* txtSizeView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        QRadioButton* radYes = nullptr;
        QRadioButton* radNo = nullptr;
        QCheckBox* chkReadOnly = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formTextbox(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
