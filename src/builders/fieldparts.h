#pragma once

#include <QStringList>

class QComboBox;
class QWidget;

namespace zt {

class Prompts;
class TextControl;

// What the form-field dialogs have in common beyond the element dialog itself.

// An empty name gets the warning "A valid name was not found" and true. The focus
// stays where it was: the box only ever answers OK, and the focus would only move on
// a Retry.
bool warnedOfNoName(const TextControl& txtName, Prompts& prompts);

// The rows of a font list: the screen's fonts but the first.
void fillFontList(QComboBox& listFont, const QStringList& screenFonts);

// The sizes a text box's font may be given, in points.
const QStringList& fontSizes();

// Enables or disables each of the widgets.
void enableAll(std::initializer_list<QWidget*> widgets, bool enabled);

} // namespace zt
