#include "elementdialog.h"

#include "checks.h"

#include "shell/modapi.h"
#include "shell/optfunctions.h"

#include "platform/prompts.h"
#include "platform/services.h"
#include "platform/textcontrol.h"

#include <QCheckBox>
#include <QPushButton>

namespace zt {

ElementDialog::ElementDialog(FormRegistry& forms, Setup setup)
    : Form(forms), m_setup(std::move(setup)) {}

ElementDialog::~ElementDialog() = default;

void ElementDialog::build(TextControl& compOrEdit, const Controls& controls) {
    m_caller = &compOrEdit;
    build(controls);
}

void ElementDialog::build(const Controls& controls) {
    auto* window = new DialogWindow(QString::fromLatin1(m_setup.name), m_setup.caption);
    setWindow(window);
    const FootButtons foot = layOut(window, controls);
    if (foot.accept)
        onClick(foot.accept, [this] { accept(); });
    if (foot.cancel)
        onClick(foot.cancel, [this] { cancel(); });
    if (foot.help)
        onClick(foot.help, [this] { help(); });
    for (const Control& control : controls) {
        if (!control.required.isEmpty())
            m_required.push_back({control.field.model, control.field.name, control.required});
    }
}

void ElementDialog::load() {
    if (!m_setup.rememberIn.isEmpty()) {
        SettingsSection section(*services().settings, m_setup.rememberIn);
        if (restoresRemembered(section.get(QStringLiteral("Remember"), QStringLiteral("0"))))
            section.restore(rememberedFields());
    }
    if (m_setup.floats)
        stayOnTop(*this);
}

bool ElementDialog::restoresRemembered(const QString& stored) const {
    return asBoolean(stored);
}

std::function<void(TextControl&)> ElementDialog::numeric() {
    return [this](TextControl& field) { checkNumeric(field, *services().prompts); };
}

void ElementDialog::accept() {
    if (warnedOfMissing())
        return;
    if (m_setup.hidesFirst)
        hide();
    deliver(fragment());
    keepSettings();
    unload();
}

void ElementDialog::deliver(const QString& fragment) {
    const QString callerMode = m_caller ? m_caller->text() : QString();
    deliverTo(forms(), targetOf(m_setup.shape, callerMode), fragment, m_setup.console);
}

void ElementDialog::cancel() {
    unload();
}

void ElementDialog::help() {
    showHelpPage(forms(), m_setup.helpPage);
}

bool ElementDialog::warnedOfMissing() {
    for (const Required& required : m_required) {
        if (!required.field->text().isEmpty())
            continue;
        services().prompts->msgBox(required.warning, vbExclamation,
                                   QStringLiteral("Assistant: Zelvo"));
        if (auto* view = window()->findChild<QWidget*>(QString::fromLatin1(required.name)))
            view->setFocus();
        return true;
    }
    return false;
}

// The fragment is delivered before the settings are written.
void ElementDialog::keepSettings() {
    if (m_setup.rememberIn.isEmpty())
        return;
    SettingsSection section(*services().settings, m_setup.rememberIn);
    const auto* box = window()->findChild<QCheckBox*>(QStringLiteral("chkRemember"));
    if (box && checkValue(box) == 1)
        section.save(rememberedFields());
    else
        section.save(QStringLiteral("Remember"), rememberWhenClear());
}

} // namespace zt
