#pragma once

#include "pageengine.h"

#include <QList>

namespace zt {

class Clipboard;

// A page engine without a page, for tests that drive the program without Qt
// WebEngine. It keeps the document as the text it was given and answers with the
// same contract as the real engine where the program can tell: the generator
// marker in the head of a page without a generator line, HTML/HEAD/BODY in upper
// case, CR LF line breaks; everything else of the text stays as it was given.
//
// The selection lives in the body's content: the text between the body's start and
// end tags, or the whole text when it has no HTML, HEAD or BODY tag (a fragment,
// which a real engine would parse into a body). Commands work on that text:
// select-all selects the content, copy puts the selected text on the clipboard as
// HTML and, stripped of tags, as plain text, cut copies and removes, paste puts the
// clipboard's HTML (or its text, escaped) in place of the selection, delete removes.
// Bold, italic and underline wrap the selection in <b>, <i> or <u>; the other
// formatting commands, the dialogs and the table and z-order commands change
// nothing here and are only noted in executed(). Every change can be undone and
// redone. A command that does not apply (no selection after a page is set, an
// empty selection for cut or delete, nothing to paste, editing in browse mode, a
// table command outside <td>, a z-order command outside a <div> with a position,
// nothing to undo or redo, an id this engine has no action for) throws 5, Invalid
// procedure call, as the real engine does.
//
// A design surface is only a flag here. A drop from a strip has no pointer to come
// from: acceptDropsFrom remembers the strip (which must outlive this engine), and
// dropFromStrip stands in for the user's drag.
class MemoryEngine : public PageEngine {
public:
    explicit MemoryEngine(Clipboard& clipboard);

    QString documentHTML() override;
    void setDocumentHTML(const QString& html) override;
    void execCommand(DhtmlCommand id) override;

    void loadDocument(const QString& path) override;
    void saveDocument(const QString& path) override;
    void newDocument() override;
    void loadURL(const QString& url) override;

    bool browseMode() const override { return m_browseMode; }
    void setBrowseMode(bool on) override { m_browseMode = on; }
    bool showDetails() const override { return m_showDetails; }
    void setShowDetails(bool on) override { m_showDetails = on; }
    bool snapToGrid() const override { return m_snapToGrid; }
    void setSnapToGrid(bool on) override { m_snapToGrid = on; }
    void setDesignSurface(bool on) override { m_designSurface = on; }
    bool designSurface() const override { return m_designSurface; }
    void acceptDropsFrom(PageEngine& strip) override { m_strip = &strip; }

    // For tests: the user drags what the strip holds onto this page. A copy of the
    // strip's body content goes at the end of the body, as one change that Undo takes
    // back; the strip keeps its own. Fails with 5 when no strip was given, the strip
    // is empty, or this page is in browse mode.
    void dropFromStrip();

    void setFocus() override { ++m_focusCount; }
    bool isVisible() const override { return m_visible; }
    void setVisible(bool visible) override { m_visible = visible; }
    QWidget* widget() override { return nullptr; }

    // For tests: the selection as offsets into the body's content. Both are clamped
    // to the content; a length of 0 puts the caret at start.
    void setSelection(int start, int length);
    // Selects the first occurrence of text in the body's content; false if none.
    bool selectText(const QString& text);
    int selectionStart() const { return m_selectionStart; }
    int selectionLength() const { return m_selectionLength; }
    QString bodyContent() const;

    // For tests: what the user does, with the events the real engine raises.
    // A typed key replaces the selection and raises onKeyPress.
    void typeKey(QChar key);
    void moveMouse();
    void changeDisplay();

    // The last URL given to loadURL, and how often the engine got the focus.
    QString loadedURL() const { return m_url; }
    int focusCount() const { return m_focusCount; }
    // The commands that applied, in order.
    const QList<DhtmlCommand>& executed() const { return m_executed; }

private:
    struct Span {
        qsizetype start;
        qsizetype end;
    };
    Span bodySpan() const;
    QString selectedHtml() const;
    void copySelection();
    void replaceSelection(const QString& html);
    void requireEditable() const;
    void requireSelection() const;
    // Whether the element the selection starts in is open around it: the text
    // before the selection has more of its start tags than end tags.
    bool insideOf(const QString& startPattern, const QString& endTag) const;
    void runFormatting(DhtmlCommand id);
    void remember();
    void replay(QList<QString>& from, QList<QString>& to);

    Clipboard& m_clipboard;
    QString m_text;
    int m_selectionStart = 0;
    int m_selectionLength = 0;
    bool m_hasSelection = false;
    QList<QString> m_undo;
    QList<QString> m_redo;
    QList<DhtmlCommand> m_executed;
    QString m_url;
    bool m_browseMode = false;
    bool m_showDetails = false;
    bool m_snapToGrid = false;
    bool m_designSurface = false;
    PageEngine* m_strip = nullptr;
    bool m_visible = true;
    int m_focusCount = 0;
};

} // namespace zt
