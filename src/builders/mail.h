#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QPushButton;

namespace zt {

class TextLineView;

// Link to E-Mail ID: a mailto link with an optional subject. It always writes into
// the source text, also when the link dialog of the visual view sent it here.
class mail : public ElementDialog {
public:
    explicit mail(FormRegistry& forms);
    ~mail() override;

    struct Ui {
        TextControl txtLink;
        TextLineView* txtLinkView = nullptr;
        TextControl txtSubject;
        TextLineView* txtSubjectView = nullptr;
        TextControl txtTextToDisp;
        TextLineView* txtTextToDispView = nullptr;
        TextControl txtScreentip;
        TextLineView* txtScreentipView = nullptr;
        QCheckBox* chkNoUnderline = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;

protected:
    QString fragment() override;
};

} // namespace zt
