#pragma once

#include "builders/protocol.h"

#include "platform/form.h"
#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class TextEditView;

// The JavaScript Console: event handlers for one new element without writing script.
// The user picks an element, whose dialog (opened for the console) writes its open
// tag into `theCode`; then, for each event, what should happen. OK closes the tag
// and puts it into the page at the caret.
class JSConsole : public Form {
public:
    explicit JSConsole(FormRegistry& forms);
    ~JSConsole() override;

    void load() override;

    // A dialog opened from the console hands its tag over here.
    void takeFragment(QString fragment, ConsoleLanding landing);

    void theListOfItems_Click();
    void theCode_Change();
    void listToBeDone_Click();
    void btnok_Click();
    void btnIns_Click();
    void btnCancel_Click();

    struct Ui {
        QListWidget* theListOfItems = nullptr;
        QListWidget* theListOfEvents = nullptr;
        QListWidget* listToBeDone = nullptr;
        TextControl theCode;
        TextEditView* theCodeView = nullptr;
        QPushButton* btnok = nullptr;
        QPushButton* btnIns = nullptr;
        QPushButton* btnCancel = nullptr;
    } ui;
};

} // namespace zt
