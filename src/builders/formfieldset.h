#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class TextLineView;

// Fieldset: a frame around a group of form fields, with an optional caption.
class formFieldset : public ElementDialog {
public:
    explicit formFieldset(FormRegistry& forms);
    ~formFieldset() override;

    void txtCaption_Change();

    struct Ui {
        TextControl compOrEdit;
        TextControl txtCaption;
        TextLineView* txtCaptionView = nullptr;
        QListWidget* listAlign = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formFieldset(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
