#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QPushButton;

namespace zt {

class TextEditView;
class TextLineView;

// Insert Text Area: a <TEXTAREA> with its default text, size and tab order, and a
// style group that Advanced unfolds. Each style it writes is an attribute of its own.
class formTextArea : public ElementDialog {
public:
    explicit formTextArea(FormRegistry& forms);
    ~formTextArea() override;

    // Fills the font list.
    void load() override;
    void accept() override;

    void chkAdvanced_Click();
    void chkUseStyleTextarea_Click();

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtDefault;
        TextEditView* txtDefaultView = nullptr;
        TextControl txtWidth;
        TextLineView* txtWidthView = nullptr;
        TextControl txtLines;
        TextLineView* txtLinesView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        QCheckBox* chkAdvanced = nullptr;
        QCheckBox* chkUseStyleTextarea = nullptr;
        QComboBox* cmbcolour = nullptr;
        QComboBox* cmbbgcolour = nullptr;
        QComboBox* listFont = nullptr;
        QCheckBox* chkBorder = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;

private:
    QGroupBox* styleGroup() const;
};

} // namespace zt
