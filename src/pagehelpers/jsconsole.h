#pragma once

#include "builders/protocol.h"

#include "platform/form.h"
#include "platform/textcontrol.h"

namespace zt {

// The JavaScript Console. For now only the text that the element dialogs opened
// from the console write into: `theCode`. The console's window, its event lists and
// its own commands come with the console itself; until then it stays hidden.
class JSConsole : public Form {
public:
    explicit JSConsole(FormRegistry& forms);
    ~JSConsole() override;

    // A dialog opened from the console hands its tag over here.
    void takeFragment(QString fragment, ConsoleLanding landing);

    struct Ui {
        TextControl theCode;
    } ui;
};

} // namespace zt
