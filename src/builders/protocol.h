#pragma once

#include "platform/formregistry.h"

#include <QString>

// How an element dialog learns who opened it and hands its fragment back.
//
// A dialog keeps its caller in a hidden text box `ui.compOrEdit` (a TextControl).
// The opener writes it, fills what else it prefills, and shows the dialog:
//
//     heading& dialog = dialogFor<heading>(forms(), caller::kEdit);
//     dialog.ui.txtHeading.setText(ui.area.selText());
//     dialog.show();
//
// On accept the dialog builds its fragment with its generator and calls deliver()
// with its own dispatch shape; the shapes differ on purpose between dialogs.
namespace zt {

namespace caller {
// The source view: the fragment replaces the selection of `area`.
inline const QString kEdit = QStringLiteral("edit");
// The visual view: the fragment goes in at the caret by VisualInsert.
inline const QString kComp = QStringLiteral("comp");
// The JavaScript Console: the fragment goes to its `theCode`.
inline const QString kConsole = QStringLiteral("jsc");
} // namespace caller

// Which caller values a dialog tests for, and in what order. Comparison is exact.
enum class Dispatch {
    EditFirst,     // "edit" to the source view, anything else to the visual view
    CompFirst,     // "comp" to the visual view, anything else to the source view
    EditOrConsole, // "edit" to the source view, anything else to the console
    ThreeWay,      // each of "edit", "comp", "jsc"; any other value delivers nothing
    SourceOnly,    // no test: always the source view
    VisualOnly,    // no test: always the visual view
    // No test: the form designer's strip, whose whole document the fragment becomes,
    // for the user to drag into the work area.
    DesignerStrip,
};

enum class Target { Source, Visual, Console, DesignerStrip, Nowhere };

Target targetOf(Dispatch shape, const QString& callerMode);

// How a fragment lands in the console's `theCode`. The tag is left open, or its
// closing `>` selected, so that the console can add event attributes before it.
enum class ConsoleLanding {
    OpenTag,        // the fragment's final `>` becomes one blank, at the selection
    AtSelection,    // at the selection, then the first `>` of the text is selected
    WholeText,      // replaces the text, then its first `>` is selected
    AtSelectionForm // at the selection, then the first `>` from character 8 is selected
};

// Source: `area.SelText` = fragment, replacing the selection of this moment.
// Visual: Tessara's VisualInsert, completed by its timer after the dialog is gone.
// Console: into `theCode` as landing says.
// DesignerStrip: `morvane.tagbar.DocumentHTML` = fragment, replacing the field before.
void deliverTo(FormRegistry& forms, Target target, const QString& fragment,
               ConsoleLanding landing = ConsoleLanding::OpenTag);

// Loads dialog D if it is not loaded (hidden, its load step run) and writes the
// caller into its compOrEdit. The opener then prefills and shows it.
template <class D> D& dialogFor(FormRegistry& forms, const QString& callerMode) {
    D& dialog = forms.get<D>();
    dialog.ui.compOrEdit.setText(callerMode);
    return dialog;
}

} // namespace zt
