#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zt {

class Pickers;
class TextLineView;

// Insert Table: a whole table from its counts, spacing, border, alignment, width and
// colour, with an advanced group of table styles, for the view that opened it. The
// rule dialog reads this dialog's `chkRemember`.
class table : public ElementDialog {
public:
    explicit table(FormRegistry& forms);
    ~table() override;

    void chkwidth_Click();
    void chkAdvanced_Click();
    void btnShowColours_Click();
    // Moving the mouse over a caption of the advanced group explains it in Status.
    void showHint(const QString& text);

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

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
        QPushButton* btnShowColours = nullptr;
        QCheckBox* chkEmptyTable = nullptr;
        QCheckBox* chkRemember = nullptr;
        QCheckBox* chkAdvanced = nullptr;
        QGroupBox* frmAdvanced = nullptr;
        QComboBox* cmbBorderCollapse = nullptr;
        QComboBox* cmbCaptionSide = nullptr;
        QComboBox* cmbEmptyCells = nullptr;
        QComboBox* cmbTableLayout = nullptr;
        TextControl txtSpac1;
        TextLineView* txtSpac1View = nullptr;
        TextControl txtSpac2;
        TextLineView* txtSpac2View = nullptr;
        TextControl txtCaption;
        TextLineView* txtCaptionView = nullptr;
        QLabel* lblBorderCollapse = nullptr;
        QLabel* lblBorderSpacing = nullptr;
        QLabel* lblCaptionSide = nullptr;
        QLabel* lblEmptyCells = nullptr;
        QLabel* lblTableLayout = nullptr;
        QLabel* Status = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog comdlg;
    } ui;

protected:
    QString fragment() override;
    // Section "Table", in the order the keys are kept.
    std::vector<Remembered> rememberedFields() override;

private:
    void addHints();
};

} // namespace zt
