#pragma once

#include "builders/elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"
#include "platform/updown.h"

class QComboBox;
class QPushButton;
class QRadioButton;

namespace zt {

class Pickers;
class TextLineView;

// Box Properties: one new box for the Layout Manager, with a name, a background and
// four borders, all alike or one by one. OK puts it into the Layout Manager's strip,
// from where the user drags it into the layout and sizes it.
class LBoxProps : public ElementDialog {
public:
    explicit LBoxProps(FormRegistry& forms);
    ~LBoxProps() override;

    // OK: an empty name becomes "LayoutBox", the box replaces what the strip held,
    // and the dialog unloads.
    void accept() override;
    // A colour button: the picked colour into the text box of its stem; none taken
    // empties the box.
    void pickColour(TextControl& field);

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtBGColour;
        TextLineView* txtBGColourView = nullptr;
        QPushButton* btnBGColour = nullptr;
        QRadioButton* radAllBorder = nullptr;
        QRadioButton* radIndiBorder = nullptr;

        QComboBox* cmbAllBorderType = nullptr;
        TextControl txtAllThickness;
        TextLineView* txtAllThicknessView = nullptr;
        UpDown UDAll;
        TextControl txtAllColour;
        TextLineView* txtAllColourView = nullptr;
        QPushButton* btnAllColour = nullptr;

        QComboBox* cmbIndiLeftType = nullptr;
        TextControl txtLeftThickness;
        TextLineView* txtLeftThicknessView = nullptr;
        UpDown UDLeft;
        TextControl txtLeftColour;
        TextLineView* txtLeftColourView = nullptr;
        QPushButton* btnLeftColour = nullptr;

        QComboBox* cmbIndiRightType = nullptr;
        TextControl txtRightThickness;
        TextLineView* txtRightThicknessView = nullptr;
        UpDown UDRight;
        TextControl txtRightColour;
        TextLineView* txtRightColourView = nullptr;
        QPushButton* btnRightColour = nullptr;

        QComboBox* cmbIndiTopType = nullptr;
        TextControl txtTopThickness;
        TextLineView* txtTopThicknessView = nullptr;
        UpDown UDTop;
        TextControl txtTopColour;
        TextLineView* txtTopColourView = nullptr;
        QPushButton* btnTopColour = nullptr;

        QComboBox* cmbIndiBottomType = nullptr;
        TextControl txtBottomThickness;
        TextLineView* txtBottomThicknessView = nullptr;
        UpDown UDBottom;
        TextControl txtBottomColour;
        TextLineView* txtBottomColourView = nullptr;
        QPushButton* btnBottomColour = nullptr;

        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        CommonDialog ComDlg;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
