#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class TextEditView;

// Three ready-made scripts for the user to copy into a page. Nothing in the program
// opens it; its buttons have no work of their own and the frame's close unloads it.
class JSMacros : public Form {
public:
    explicit JSMacros(FormRegistry& forms);
    ~JSMacros() override;

    struct Ui {
        TextControl txtLastVisit;
        TextEditView* txtLastVisitView = nullptr;
        TextControl txtFlyingBanner;
        TextEditView* txtFlyingBannerView = nullptr;
        TextControl txtButtonClock;
        TextEditView* txtButtonClockView = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

} // namespace zt
