#include "ledithtml.h"

#include "lmanager.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"

#include <QPushButton>

namespace zt {

LEditHTML::LEditHTML(FormRegistry& forms) : Form(forms) {
    auto* window =
        new DialogWindow(QStringLiteral("LEditHTML"), QStringLiteral("Layout: Edit HTML"));
    setWindow(window);
    layOut(window, {
                       // control, caption, default, place
                       {memo("txtCode", ui.txtCode, ui.txtCodeView), "", "", Place::Line},
                       {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
                       {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
                   });
    window->resize(720, 520);
    onClick(ui.OKButton, [this] { OKButton_Click(); });
    onClick(ui.CancelButton, [this] { CancelButton_Click(); });
}

LEditHTML::~LEditHTML() = default;

void LEditHTML::formUnload(bool& cancel) {
    (void)cancel;
    forms().get<LManager>().show();
}

void LEditHTML::OKButton_Click() {
    LManager& manager = forms().get<LManager>();
    manager.ui.result->setDocumentHTML(ui.txtCode.text());
    manager.show();
    unload();
}

void LEditHTML::CancelButton_Click() {
    unload();
}

} // namespace zt
