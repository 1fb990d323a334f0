#pragma once

#include "platform/form.h"

class QLabel;
class QPushButton;

namespace zt {

// The designer's help: how the designer works, and a button for each kind of
// field, named and tipped as the designer's own insert buttons, that tells of it.
class MHelp : public Form {
public:
    explicit MHelp(FormRegistry& forms);
    ~MHelp() override;

    // The introduction.
    void load() override;
    // The text told by the button of that name.
    void explain(const QString& button);

    struct Ui {
        QLabel* lblHelp = nullptr;
        QPushButton* OKButton = nullptr;
    } ui;
};

} // namespace zt
