#pragma once

#include "builders/elementdialog.h"

#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextEditView;

// Insert HTML: markup typed by hand goes into the page at the caret, as it stands.
class insHTML : public ElementDialog {
public:
    explicit insHTML(FormRegistry& forms);
    ~insHTML() override;

    struct Ui {
        TextControl theTags;
        TextEditView* theTagsView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;

protected:
    QString fragment() override { return ui.theTags.text(); }
};

} // namespace zt
