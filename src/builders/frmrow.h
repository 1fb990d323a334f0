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

// Insert Rows: rows with their cells for a table already in the source text. It has
// no caller: the rows always go to the source view.
class frmrow : public ElementDialog {
public:
    explicit frmrow(FormRegistry& forms);
    ~frmrow() override;

    void btnMoreColours_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl compOrEdit;
        // Where the digit check takes a watched field's text apart.
        TextControl checkee;
        TextControl txtrow;
        TextLineView* txtrowView = nullptr;
        TextControl txtcol;
        TextLineView* txtcolView = nullptr;
        QComboBox* cmbcolour = nullptr;
        QPushButton* btnMoreColours = nullptr;
        QCheckBox* chkEmptyTable = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog comdlg;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
