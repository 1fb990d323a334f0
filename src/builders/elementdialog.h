#pragma once

#include "protocol.h"
#include "remember.h"

#include "platform/dialogparts.h"
#include "platform/form.h"

#include <vector>

namespace zt {

class TextControl;

// A dialog that turns what is entered into one fragment for the view, or the
// console, that opened it. This class owns what they all do alike: the window, the
// accept, cancel and help buttons with their handlers, the caller in `compOrEdit`,
// the required fields, "Remember Settings", floating above the other windows, and
// the delivery by the dialog's shape. A dialog adds its controls, its fragment and
// what its setup says:
//
//     rule::rule(FormRegistry& forms)
//         : ElementDialog(forms, {.name = "rule", .caption = "...", .helpPage = "hr.zhp"}) {
//         build(ui.compOrEdit, {...its table of controls...});
//     }
//     QString rule::fragment() { return ruleTag({...from ui...}); }
class ElementDialog : public Form {
public:
    struct Setup {
        const char* name;
        QString caption = {};
        QString helpPage = {};
        Dispatch shape = Dispatch::EditFirst;
        ConsoleLanding console = ConsoleLanding::OpenTag;
        // The section of the settings store that "Remember Settings" keeps the
        // fields under; empty for a dialog without it.
        QString rememberIn = {};
        // Whether the load keeps the window above all others, as nearly every
        // dialog's does.
        bool floats = true;
        // Whether accept hides the window before it delivers, once the required
        // fields are there.
        bool hidesFirst = false;
    };

    ~ElementDialog() override;

    // Restores the remembered fields when the store says so, then floats the window.
    void load() override;

    // The accept button: a required field left empty is warned of and keeps the
    // dialog open; otherwise the dialog hides if its setup says so, the fragment goes
    // where the caller says, the settings are kept and the dialog unloads.
    virtual void accept();
    // The cancel button, Esc, and the frame's close: the dialog unloads.
    void cancel();
    // The help button: the dialog's page in the help window.
    virtual void help();

protected:
    ElementDialog(FormRegistry& forms, Setup setup);

    // Makes the window from the dialog's table of controls. compOrEdit is the
    // hidden text box the opener writes the caller into.
    void build(TextControl& compOrEdit, const Controls& controls);
    // The same for a dialog that always delivers to one view and has no caller.
    void build(const Controls& controls);

    // The fragment, from the dialog's generator and its controls.
    virtual QString fragment() = 0;

    // "Remember Settings": the fields kept under the section, "Remember" included.
    virtual std::vector<Remembered> rememberedFields() { return {}; }
    // Whether the stored "Remember" brings the fields back at load.
    virtual bool restoresRemembered(const QString& stored) const;
    // The "Remember" written on accept when the box is clear.
    virtual QString rememberWhenClear() { return QStringLiteral("0"); }

    // The numeric check of a number field, as a limit of the table.
    std::function<void(TextControl&)> numeric();

    // Warns of the first required field left empty and moves the focus to it.
    bool warnedOfMissing();
    // Hands the fragment to the caller the dialog's shape picks.
    void deliver(const QString& fragment);

private:
    struct Required {
        TextControl* field;
        const char* name;
        QString warning;
    };

    void keepSettings();

    Setup m_setup;
    TextControl* m_caller = nullptr;
    std::vector<Required> m_required;
};

} // namespace zt
