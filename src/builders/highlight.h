#pragma once

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class Pickers;
class TextEditView;
class TextLineView;

// Highlight Text: the source view's selection on a coloured background. The
// visual view builds its highlight itself and only tells this dialog its caller.
class highlight : public Form {
public:
    explicit highlight(FormRegistry& forms);
    ~highlight() override;

    void load() override;

    void OKButton_Click();
    void CancelButton_Click();
    void btnHelp_Click();
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
};

} // namespace zt
