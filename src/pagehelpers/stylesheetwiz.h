#pragma once

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

class QPushButton;
class QRadioButton;

namespace zt {

class TextEditView;

// The Style Sheet Creator, second step: the rules the user pasted go into a .css
// file, or, wrapped in a style block, before the end of the document's head.
class styleSheetWiz : public Form {
public:
    explicit styleSheetWiz(FormRegistry& forms);
    ~styleSheetWiz() override;

    void load() override;
    // The first step goes with the second.
    void formUnload(bool& cancel) override;

    void OKButton_Click();
    void CancelButton_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        TextControl txtCode;
        TextEditView* txtCodeView = nullptr;
        QRadioButton* radInt = nullptr;
        QRadioButton* radExt = nullptr;
        // Which view receives the block. Nothing writes it, so it is always the
        // visual view's, whichever view opened the creator.
        TextControl compOrEdit;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        CommonDialog ComDlg;
    } ui;

private:
    void writeStyleSheetFile();
    void placeInDocument();
};

} // namespace zt
