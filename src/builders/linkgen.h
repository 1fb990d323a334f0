#pragma once

#include <QString>

#include <vector>

namespace zt {

// The relationship of the page behind a link to its author, as the link dialog's
// options and boxes give it.
struct Relationship {
    bool anotherAddressOfMine = false;
    enum Friendship { Friend, Acquaintance, Contact, NoFriendship } friendship = NoFriendship;
    bool met = false;
    // The two professional boxes are read as if they were options, which a ticked
    // box never matches: they are here so that a test can see them add nothing.
    bool colleague = false, coWorker = false;
    enum Geography { CoResident, Neighbour, NoGeography } geography = NoGeography;
    enum Family { Child, Parent, Sibling, Spouse, Kin, NoFamily } family = NoFamily;
    bool muse = false, crush = false, date = false, sweetheart = false;
};

// ` rel="me"` for another address of the author's, else ` rel="` and the chosen
// tokens, each after a blank, and `"`. Always written, ` rel=""` when nothing is
// chosen. "Co resident" gives co-worker and "Muse" gives met.
QString relationshipValue(const Relationship& relationship);

struct HyperlinkValues {
    QString rel{};
    QString link{};
    QString screenTip{};
    bool noUnderline = false;
    // The whole attribute with its leading blank, or empty.
    QString target{};
    QString text{};
    // For the JavaScript Console the opening tag closes with ` >`, so that the
    // handlers it adds before the `>` stand apart from the last attribute.
    bool forConsole = false;
};

// `<A{rel} href="{link}"{ TITLE="tip"}{ STYLE="text-decoration:none"}{target}>{text}</A>`
QString hyperlinkTag(const HyperlinkValues& values);

struct MailValues {
    QString address{};
    QString subject{};
    QString screenTip{};
    bool noUnderline = false;
    QString text{};
};

// `<A href="mailto:{address}{?subject=...}"{title}{style}>{text}</A>`; the subject
// goes in as typed, not encoded.
QString mailTag(const MailValues& values);

// A named anchor: empty for the source view, with a non-breaking space for any other
// caller, so that it can be seen in a page.
QString bookmarkTag(const QString& name, bool forSource);

struct ScannedBookmark {
    QString tag;
    QString name;
};

// The named anchors of a text, as whole tags and their names. The search is for
// `<a name` in any case from the second character on, so an anchor that opens the
// text is missed; positions are 16-bit, so the search ends at the first anchor that
// starts beyond character 32767. A tag with no `>` after it is passed over. The
// name is what stands between the tag's first two double quotes; a tag without
// them gives the bare value after `name=`.
std::vector<ScannedBookmark> scanBookmarks(const QString& text);

} // namespace zt
