#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextEditView;

// The one window that shows a help page, read-only. Other commands borrow it for
// text of their own under a caption of their own; unloading puts its caption back.
class frmHelp : public Form {
public:
    explicit frmHelp(FormRegistry& forms);
    ~frmHelp() override;

    void load() override;
    void formUnload(bool& cancel) override;

    void Command1_Click();

    struct Ui {
        TextControl txtHelp;
        TextEditView* txtHelpView = nullptr;
        QPushButton* Command1 = nullptr;
    } ui;
};

} // namespace zt
