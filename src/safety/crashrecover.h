#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class FileListBox;
class TextLineView;

// The Crash Recovery Wizard: switches on the timed save of the open document (the
// visual view's TimeCrashSave) and lists the saved files to load one back.
class crashRecover : public Form {
public:
    explicit crashRecover(FormRegistry& forms);
    ~crashRecover() override;

    // Without a crash folder the window says so and unloads itself.
    void load() override;

    void btnConfigure_Click();
    // Leaves the timer running, as it always has, and says it is off.
    void btnDisableCRW_Click();
    void btnLoad_Click();
    void btnHelp_Click();

    struct Ui {
        TextControl txtDocName;
        TextLineView* txtDocNameView = nullptr;
        TextControl txtTimerValue;
        TextLineView* txtTimerValueView = nullptr;
        QPushButton* btnConfigure = nullptr;
        QPushButton* btnDisableCRW = nullptr;
        FileListBox* FileCrash = nullptr;
        QPushButton* btnLoad = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;
};

// Shows the wizard, unless its load found no crash folder.
void showCrashRecover(FormRegistry& forms);

} // namespace zt
