#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"

class QCheckBox;
class QComboBox;
class QPushButton;

namespace zt {

class Pickers;
class TextLineView;

// Insert Horizontal Rule: an <HR> tag from a width, size, alignment, colour and
// shading, for the view that opened it.
class rule : public ElementDialog {
public:
    explicit rule(FormRegistry& forms);
    ~rule() override;

    void btnShowColours_Click();

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

protected:
    QString fragment() override;
    // Section "HRule", in the order the keys are kept.
    std::vector<Remembered> rememberedFields() override;
    bool restoresRemembered(const QString& stored) const override;
    QString rememberWhenClear() override;
};

} // namespace zt
