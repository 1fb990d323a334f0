#pragma once

#include "remember.h"

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

#include <vector>

class QCheckBox;
class QComboBox;
class QPushButton;

namespace zt {

class Pickers;
class TextLineView;

// Insert Horizontal Rule: an <HR> tag from a width, size, alignment, colour and
// shading, for the view that opened it.
class rule : public Form {
public:
    explicit rule(FormRegistry& forms);
    ~rule() override;

    void load() override;

    void OKButton_Click();
    void CancelButton_Click();
    void btnHelp_Click();
    void btnShowColours_Click();
    void txtWidth_Change();
    void txtSize_Change();

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl compOrEdit;
        TextControl txtWidth;
        TextLineView* txtWidthView = nullptr;
        QCheckBox* chkPercentage = nullptr;
        TextControl txtSize;
        TextLineView* txtSizeView = nullptr;
        QCheckBox* chkShade = nullptr;
        QComboBox* cmbAlign = nullptr;
        TextControl txtColour;
        TextLineView* txtColourView = nullptr;
        QPushButton* btnShowColours = nullptr;
        QCheckBox* chkRemember = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog comdlg;
    } ui;

private:
    // Section "HRule", in the order the keys are kept.
    std::vector<Remembered> rememberedFields();
};

} // namespace zt
