#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class TextLineView;

// Target Frame: the frame a link opens in, for the link dialog. It holds the whole
// attribute, leading blank included, and may be typed into. OK only hides the
// window, so the text stays for the link dialog; Close unloads it, which empties it.
class target : public Form {
public:
    explicit target(FormRegistry& forms);
    ~target() override;

    void load() override;

    void listTarget_Click();
    void OKButton_Click();
    void CancelButton_Click();

    struct Ui {
        QListWidget* listTarget = nullptr;
        TextControl txtTarget;
        TextLineView* txtTargetView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

} // namespace zt
