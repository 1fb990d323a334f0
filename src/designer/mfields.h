#pragma once

#include "builders/formbutton.h"
#include "builders/formfieldset.h"
#include "builders/formfile.h"
#include "builders/formhidden.h"
#include "builders/formradchk.h"
#include "builders/formtextbox.h"

// The designer's field dialogs that are the form-field dialogs of the views with a
// few differences: each writes its field as the whole document of the designer's strip
// `tagbar`, for the user to drag into the work area, and unloads. Their hidden caller
// box is read by nothing, they have no help, and their numbers go out as typed.
namespace zt {

// Insert Text Box. An empty name is warned of and the dialog stays open.
class MformTextbox : public formTextbox {
public:
    explicit MformTextbox(FormRegistry& forms);
    void accept() override;
};

// Insert Button; "button" is on until another type is chosen.
class MformButton : public formButton {
public:
    explicit MformButton(FormRegistry& forms);
};

// Insert Option Buttons; the opener picks radio button or check box.
class MformRadChk : public formRadChk {
public:
    explicit MformRadChk(FormRegistry& forms);
};

// File Upload.
class MformFile : public formFile {
public:
    explicit MformFile(FormRegistry& forms);
};

// Fieldset, with a Cancel button.
class MformFieldset : public formFieldset {
public:
    explicit MformFieldset(FormRegistry& forms);
};

// Insert Hidden Element, with a Cancel button. The field always comes wrapped in body
// tags of its own.
class MformHidden : public formHidden {
public:
    explicit MformHidden(FormRegistry& forms);

protected:
    QString fragment() override;
};

} // namespace zt
