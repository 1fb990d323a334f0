#pragma once

#include <QString>

namespace zt {

// Message box styles and answers, with the run time's numbers so that a handler
// reads like the box it asks for: vbYesNo | vbQuestion | vbDefaultButton2.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
};
enum MsgBoxResult : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

// Message and input boxes. A title left empty shows the program's default title.
class Prompts {
public:
    virtual ~Prompts() = default;
    virtual int msgBox(const QString& text, int style = vbOKOnly, const QString& title = {}) = 0;
    // The entered text, or an empty string for Cancel, as the run time's input box.
    virtual QString inputBox(const QString& prompt, const QString& title = {},
                             const QString& defaultText = {}) = 0;
};

} // namespace zt
