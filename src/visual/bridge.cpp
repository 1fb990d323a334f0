#include "bridge.h"

#include "platform/engine/pageengine.h"
#include "platform/formregistry.h"
#include "platform/textcontrol.h"
#include "platform/vbstrings.h"
#include "shell/tessara.h"
#include "shell/zelvo.h"

#include <vector>

namespace zt {

namespace {

struct Rule {
    QString find;
    QString with;
};

// R1 turns the engine's generator line into the program's own; R2 and R3 remove
// the lines two engine versions write, leaving their line breaks behind.
const Rule& ruleR1() {
    static const Rule r{kEngineGeneratorMarker,
                        QStringLiteral(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)")};
    return r;
}
const Rule& ruleR2() {
    static const Rule r{QStringLiteral("<META content=\"MSHTML 6.00.2800.1106\" name=GENERATOR>"),
                        {}};
    return r;
}
const Rule& ruleR3() {
    static const Rule r{QStringLiteral("<META content=\"MSHTML 6.00.2600.0\" name=GENERATOR>"), {}};
    return r;
}

std::vector<const Rule*> rulesOf(RuleSet set) {
    switch (set) {
    case RuleSet::FullScrub:
        return {&ruleR1(), &ruleR2(), &ruleR3()};
    case RuleSet::StandardScrub:
        return {&ruleR1(), &ruleR2()};
    case RuleSet::GeneratorOnly:
        return {&ruleR1()};
    }
    return {};
}

} // namespace

void VisualSync(PageEngine& txtComp, RuleSet set, TextControl& target) {
    target.setText(txtComp.documentHTML());
    for (const Rule* rule : rulesOf(set))
        target.setText(vb::Replace(target.text(), rule->find, rule->with));
}

void SwitchToVisual(FormRegistry& forms) {
    Zelvo& zelvo = forms.get<Zelvo>();
    Tessara& tessara = forms.get<Tessara>();
    // With the visual view already in front the source text is older than the page:
    // copying it would throw away what was typed into the page.
    if (zelvo.isVisible() || !tessara.isVisible())
        tessara.ui.txtComp->setDocumentHTML(zelvo.ui.area.text());
    zelvo.hide();
    tessara.show();
}

} // namespace zt
