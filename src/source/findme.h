#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

class QCheckBox;
class QPushButton;

namespace zt {

class Prompts;
class TextLineView;

// Find: searches the source text for what is typed, always from the top, and
// selects the first match. Find Next reads Match Case from here too.
class FindMe : public Form {
public:
    explicit FindMe(FormRegistry& forms);
    ~FindMe() override;

    void load() override;

    void OKButton_Click();
    void CancelButton_Click();

    struct Ui {
        TextControl txtFind;
        TextLineView* txtFindView = nullptr;
        QCheckBox* chkCase = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

// What Find and Find Next say when there is no (further) match.
void reportSearchFinished(Prompts& prompts);

} // namespace zt
