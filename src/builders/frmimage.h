#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"
#include "platform/updown.h"

class QCheckBox;
class QComboBox;
class QPushButton;

namespace zt {

class ImagePreview;
class Pickers;
class TextLineView;

// Image: an <IMG> tag from a picture's source, alignment, border and size, for the
// source view or the JavaScript Console. After each insertion the dialog comes back
// fresh for the next picture; only Close ends it.
class frmImage : public ElementDialog {
public:
    explicit frmImage(FormRegistry& forms);
    ~frmImage() override;

    void btnSource_Click();
    void chkDimensions_Click();
    // A spin button: up adds one; down takes one away only from a value above 0.
    void spin(TextControl& field, int step);
    // The Insert button.
    void accept() override;

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl compOrEdit;
        TextControl txtSource;
        TextLineView* txtSourceView = nullptr;
        QPushButton* btnSource = nullptr;
        TextControl txtAlt;
        TextLineView* txtAltView = nullptr;
        QCheckBox* chkDimensions = nullptr;
        TextControl txtHeight;
        TextLineView* txtHeightView = nullptr;
        QCheckBox* chkHPercentage = nullptr;
        TextControl txtWidth;
        TextLineView* txtWidthView = nullptr;
        QCheckBox* chkWPercentage = nullptr;
        TextControl txtHSpace;
        TextLineView* txtHSpaceView = nullptr;
        UpDown updHSpace;
        TextControl txtVSpace;
        TextLineView* txtVSpaceView = nullptr;
        UpDown updVSpace;
        TextControl txtBorder;
        TextLineView* txtBorderView = nullptr;
        UpDown updBorder;
        QComboBox* cmbAlign = nullptr;
        ImagePreview* imgPreview = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* btnClose = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog comdlg;
    } ui;

protected:
    QString fragment() override;

private:
    // Dimensions asked for need both a height and a width.
    bool warnedOfDimensions();
    Field spinButtons(const char* name, UpDown& arrows, TextControl& field);
};

} // namespace zt
