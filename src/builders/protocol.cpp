#include "protocol.h"

#include "designer/morvane.h"
#include "pagehelpers/jsconsole.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

namespace zt {

Target targetOf(Dispatch shape, const QString& callerMode) {
    switch (shape) {
    case Dispatch::EditFirst:
        return callerMode == caller::kEdit ? Target::Source : Target::Visual;
    case Dispatch::CompFirst:
        return callerMode == caller::kComp ? Target::Visual : Target::Source;
    case Dispatch::EditOrConsole:
        return callerMode == caller::kEdit ? Target::Source : Target::Console;
    case Dispatch::ThreeWay:
        if (callerMode == caller::kEdit)
            return Target::Source;
        if (callerMode == caller::kComp)
            return Target::Visual;
        if (callerMode == caller::kConsole)
            return Target::Console;
        return Target::Nowhere;
    case Dispatch::SourceOnly:
        return Target::Source;
    case Dispatch::VisualOnly:
        return Target::Visual;
    case Dispatch::DesignerStrip:
        return Target::DesignerStrip;
    }
    return Target::Nowhere;
}

void deliverTo(FormRegistry& forms, Target target, const QString& fragment,
               ConsoleLanding landing) {
    switch (target) {
    case Target::Source:
        forms.get<Zelvo>().ui.area.setSelText(fragment);
        break;
    case Target::Visual:
        forms.get<Tessara>().VisualInsert(fragment);
        break;
    case Target::Console:
        forms.get<JSConsole>().takeFragment(fragment, landing);
        break;
    case Target::DesignerStrip:
        forms.get<morvane>().ui.tagbar->setDocumentHTML(fragment);
        break;
    case Target::Nowhere:
        break;
    }
}

} // namespace zt
