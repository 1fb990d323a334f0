#pragma once

#include <QString>

namespace zt {

class FormRegistry;
class PageEngine;
class TextControl;

// The ordered rule sets applied to the page's text on its way to the source view.
enum class RuleSet { FullScrub, StandardScrub, GeneratorOnly };

// The visual-to-text copy: target's Text becomes the engine's document, then each
// rule of the set in order rewrites the whole text, one assignment per rule.
void VisualSync(PageEngine& txtComp, RuleSet set, TextControl& target);

// The source-to-visual copy, unchanged, then the source view hidden and the
// visual one shown. Called with the visual view in front (the crash wizard does), it
// only keeps that view in front: the page is the newer text.
void SwitchToVisual(FormRegistry& forms);

} // namespace zt
