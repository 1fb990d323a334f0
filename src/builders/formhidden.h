#pragma once

#include "elementdialog.h"
#include "fieldparts.h"

#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextLineView;

// Insert Hidden Element: a value the form sends that the visitor never sees. The
// visual view gets it wrapped in a body of its own.
class formHidden : public ElementDialog {
public:
    explicit formHidden(FormRegistry& forms);
    ~formHidden() override;

    void accept() override;

    struct Ui {
        TextControl compOrEdit;
        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtValue;
        TextLineView* txtValueView = nullptr;
        QPushButton* btnInsert = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    // The same field for the form designer's strip.
    formHidden(FormRegistry& forms, const FieldVariant& variant);

    QString fragment() override;
};

} // namespace zt
