#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace zt {

class TextLineView;

// Insert Table. So far the dialog holds the fields it remembers and its load,
// which brings them back from section "Table" when "Remember Settings" was ticked;
// the rule dialog reads its `chkRemember`. The accept step with its template, the
// colour button, the advanced group, the status-bar hints and its opening from the
// views come with the rest of the dialog.
class table : public ElementDialog {
public:
    explicit table(FormRegistry& forms);
    ~table() override;

    void chkwidth_Click();

    struct Ui {
        TextControl compOrEdit;
        TextControl txtrow;
        TextLineView* txtrowView = nullptr;
        TextControl txtcol;
        TextLineView* txtcolView = nullptr;
        TextControl txtcelpad;
        TextLineView* txtcelpadView = nullptr;
        TextControl txtcelspac;
        TextLineView* txtcelspacView = nullptr;
        TextControl txtBorder;
        TextLineView* txtBorderView = nullptr;
        QComboBox* cmbAlign = nullptr;
        QCheckBox* chkwidth = nullptr;
        TextControl txtWidth;
        TextLineView* txtWidthView = nullptr;
        QRadioButton* radpixels = nullptr;
        QRadioButton* radpercentage = nullptr;
        TextControl txtColour;
        TextLineView* txtColourView = nullptr;
        QCheckBox* chkEmptyTable = nullptr;
        QCheckBox* chkRemember = nullptr;
    } ui;

protected:
    QString fragment() override;
    // Section "Table", in the order the keys are kept.
    std::vector<Remembered> rememberedFields() override;
};

} // namespace zt
