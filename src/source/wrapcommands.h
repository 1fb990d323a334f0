#pragma once

#include <QStringView>
#include <QtGlobal>

#include <functional>

namespace zt {

class TextControl;

// The tag-pair commands of the source view. Each puts its pair round the selection of
// area or takes a pair off again, by fixed tags and fixed lengths and nothing else:
// no parser looks at the text.
enum class Wrap {
    Bold,
    Italics,
    Underline,
    Abbreviation,
    Big,
    Code,
    Emphasis,
    Keyboard,
    Preformat,
    Quote,
    Small,
    Strong,
    Subscript,
    Superscript,
    Comment,
    Indent,
    Outdent,
};

// How a command decides between adding a pair and taking one off.
enum class WrapTest {
    // Takes the pair off a selection that starts with the opening tag, spelled exactly
    // as inserted or as the second spelling; adds a pair to any other selection.
    ExactSpelling,
    // Adds another pair every time.
    AlwaysWrap,
    // Takes the pair off a selection that starts with the opening tag in any mixture
    // of case; does nothing to any other selection.
    UnwrapAnyCase,
};

// One command's constants, exactly as its author typed them. The lengths are not
// derived from the tags: two of them are wrong (Big and Emphasis), and the selection
// they leave is kept as these commands have always left it.
struct WrapMember {
    Wrap key;
    WrapTest test;
    // Inserted on wrap, and compared with the start of the selection (with the
    // selection lower-cased first, for UnwrapAnyCase).
    QStringView opening;
    QStringView secondSpelling;  // also counts as tagged; empty when there is none
    QStringView closing;         // inserted
    QStringView closingSearched; // looked for in the lower-cased text
    qint16 closingRemoved;
    qint16 openingRemoved;
    qint16 addedOnWrap;
    qint16 takenOnUnwrap;
};

const WrapMember& wrapMember(Wrap which);

// Runs one command on area. giveFocus is called where the command gives area the
// focus, between its edits. Positions are 16-bit as the commands always held them, so
// a selection beyond 32767 fails with Overflow, and the failures of the search and of
// the selection properties come out as they are.
void runWrap(TextControl& area, Wrap which, const std::function<void()>& giveFocus = {});

} // namespace zt
