#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class Pickers;
class TextEditView;
class TextLineView;

// Highlight Text: the source view's selection on a coloured background. The
// visual view builds its highlight itself and only tells this dialog its caller.
class highlight : public ElementDialog {
public:
    explicit highlight(FormRegistry& forms);
    ~highlight() override;

    void openColor_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl compOrEdit;
        TextControl txthighlight;
        TextEditView* txthighlightView = nullptr;
        TextControl txtColour;
        TextLineView* txtColourView = nullptr;
        QPushButton* openColor = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog comdlg;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
