#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextLineView;

// File Upload: an <INPUT type="file"> with which a visitor sends a file of theirs.
class formFile : public ElementDialog {
public:
    explicit formFile(FormRegistry& forms);
    ~formFile() override;

    void accept() override;

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtDefault;
        TextLineView* txtDefaultView = nullptr;
        TextControl txtSize;
        TextLineView* txtSizeView = nullptr;
        TextControl txtTab;
        TextLineView* txtTabView = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formFile(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
