#pragma once

#include "platform/engine/pageengine.h"
#include "platform/form.h"

#include <memory>

class QPushButton;

namespace zt {

// The Style Sheet Creator, first step: the program's own style page, tools/ssc.ssc,
// running in browse mode, where the user builds rules and copies them. The program
// never reads the rules; the second step takes what the user pastes.
class styleSheet : public Form {
public:
    explicit styleSheet(FormRegistry& forms);
    ~styleSheet() override;

    void load() override;

    void btnColourPicker_Click();
    void btnHelp_Click();
    void btnNext_Click();
    void CancelButton_Click();

    struct Ui {
        std::unique_ptr<PageEngine> webber;
        QPushButton* btnColourPicker = nullptr;
        QPushButton* btnHelp = nullptr;
        QPushButton* btnNext = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;
};

} // namespace zt
