// The menu items of the two views that open the form-field dialogs. Both views
// open the same dialogs with the same presets; only the caller differs.
#include "formbutton.h"
#include "formfieldset.h"
#include "formfile.h"
#include "formhidden.h"
#include "formradchk.h"
#include "formtextarea.h"
#include "formtextbox.h"
#include "protocol.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include <QRadioButton>

namespace zt {

namespace {

// The text box and the password box are one dialog with two captions.
void openTextbox(FormRegistry& forms, const QString& callerMode, bool password) {
    formTextbox& dialog = dialogFor<formTextbox>(forms, callerMode);
    dialog.setCaption(password ? QStringLiteral("Insert Password Box : Zelvo")
                               : QStringLiteral("Insert Text Box : Zelvo"));
    if (password)
        dialog.ui.radYes->setChecked(true);
    dialog.show();
}

// A dialog of several kinds of field, shown with the kind of the menu item on.
template <class D>
void openAs(FormRegistry& forms, const QString& callerMode, QRadioButton* D::Ui::*kind) {
    D& dialog = dialogFor<D>(forms, callerMode);
    (dialog.ui.*kind)->setChecked(true);
    dialog.show();
}

template <class D> void open(FormRegistry& forms, const QString& callerMode) {
    dialogFor<D>(forms, callerMode).show();
}

} // namespace

void Zelvo::mnuTextBox() {
    openTextbox(forms(), caller::kEdit, false);
}
void Zelvo::mnuPassword() {
    openTextbox(forms(), caller::kEdit, true);
}
void Zelvo::mnuTextArea() {
    open<formTextArea>(forms(), caller::kEdit);
}
void Zelvo::mnuButton() {
    openAs<formButton>(forms(), caller::kEdit, &formButton::Ui::radButton);
}
void Zelvo::mnuSubmit() {
    openAs<formButton>(forms(), caller::kEdit, &formButton::Ui::radSubmit);
}
void Zelvo::mnuReset() {
    openAs<formButton>(forms(), caller::kEdit, &formButton::Ui::radReset);
}
void Zelvo::mnuRadio() {
    openAs<formRadChk>(forms(), caller::kEdit, &formRadChk::Ui::radRadio);
}
void Zelvo::mnuCheckbox() {
    openAs<formRadChk>(forms(), caller::kEdit, &formRadChk::Ui::radCheckbox);
}
void Zelvo::mnuFileUpload() {
    open<formFile>(forms(), caller::kEdit);
}
void Zelvo::mnuFieldset() {
    open<formFieldset>(forms(), caller::kEdit);
}
void Zelvo::mnuHidden() {
    open<formHidden>(forms(), caller::kEdit);
}

void Tessara::mnuTextBox() {
    openTextbox(forms(), caller::kComp, false);
}
void Tessara::mnuPassword() {
    openTextbox(forms(), caller::kComp, true);
}
void Tessara::mnuTextArea() {
    open<formTextArea>(forms(), caller::kComp);
}
void Tessara::mnuButton() {
    openAs<formButton>(forms(), caller::kComp, &formButton::Ui::radButton);
}
void Tessara::mnuSubmit() {
    openAs<formButton>(forms(), caller::kComp, &formButton::Ui::radSubmit);
}
void Tessara::mnuReset() {
    openAs<formButton>(forms(), caller::kComp, &formButton::Ui::radReset);
}
void Tessara::mnuRadio() {
    openAs<formRadChk>(forms(), caller::kComp, &formRadChk::Ui::radRadio);
}
void Tessara::mnuCheckbox() {
    openAs<formRadChk>(forms(), caller::kComp, &formRadChk::Ui::radCheckbox);
}
// The visual view's Insert File is this field; the source view's inserts a file's text.
void Tessara::mnuInsFile() {
    open<formFile>(forms(), caller::kComp);
}
void Tessara::mnuFieldset() {
    open<formFieldset>(forms(), caller::kComp);
}
void Tessara::mnuHidden() {
    open<formHidden>(forms(), caller::kComp);
}

} // namespace zt
