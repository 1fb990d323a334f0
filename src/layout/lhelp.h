#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextEditView;

// The Layout Manager's help: five buttons, each putting its text into the box
// below them; the introduction shows first.
class LHelp : public Form {
public:
    explicit LHelp(FormRegistry& forms);
    ~LHelp() override;

    void load() override;
    // The text told by the button of that name.
    void explain(const QString& button);

    struct Ui {
        TextControl txtHelp;
        TextEditView* txtHelpView = nullptr;
        QPushButton* btnIntro = nullptr;
        QPushButton* btnAddNew = nullptr;
        QPushButton* btnLoadSave = nullptr;
        QPushButton* btnEditHTML = nullptr;
        QPushButton* btnFinal = nullptr;
    } ui;
};

} // namespace zt
