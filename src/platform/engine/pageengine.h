#pragma once

#include <QString>

#include <chrono>
#include <functional>

class QWidget;

namespace zt {

// The published command ids of the visual editing control.
enum DhtmlCommand : int {
    DECMD_BOLD = 5000,
    DECMD_COPY = 5002,
    DECMD_CUT = 5003,
    DECMD_DELETE = 5004,
    DECMD_DELETECELLS = 5005,
    DECMD_DELETECOLS = 5006,
    DECMD_DELETEROWS = 5007,
    DECMD_FINDTEXT = 5008,
    DECMD_FONT = 5009,
    DECMD_HYPERLINK = 5016,
    DECMD_IMAGE = 5017,
    DECMD_INDENT = 5018,
    DECMD_INSERTCELL = 5019,
    DECMD_INSERTCOL = 5020,
    DECMD_INSERTROW = 5021,
    DECMD_INSERTTABLE = 5022,
    DECMD_ITALIC = 5023,
    DECMD_JUSTIFYCENTER = 5024,
    DECMD_JUSTIFYLEFT = 5025,
    DECMD_JUSTIFYRIGHT = 5026,
    DECMD_MERGECELLS = 5029,
    DECMD_ORDERLIST = 5030,
    DECMD_OUTDENT = 5031,
    DECMD_PASTE = 5032,
    DECMD_REDO = 5033,
    DECMD_REMOVEFORMAT = 5034,
    DECMD_SELECTALL = 5035,
    DECMD_SEND_BACKWARD = 5036,
    DECMD_BRING_FORWARD = 5037,
    DECMD_SEND_BELOW_TEXT = 5038,
    DECMD_BRING_ABOVE_TEXT = 5039,
    DECMD_SEND_TO_BACK = 5040,
    DECMD_BRING_TO_FRONT = 5041,
    DECMD_SPLITCELL = 5047,
    DECMD_UNDERLINE = 5048,
    DECMD_UNDO = 5049,
    DECMD_UNLINK = 5050,
    DECMD_UNORDERLIST = 5051,
};

// The generator line an engine writes into a page's head when the page has none of
// its own. The source view's rule table turns it into the program's own line.
inline const QString kEngineGeneratorMarker =
    QStringLiteral(R"(<META NAME="GENERATOR" Content="Microsoft DHTML Editing Control">)");

// The visual editing control as the program sees it. Reads are synchronous.
// A command that does not apply, a file that cannot be read or written, and
// anything else the control refuses throw RuntimeFailure, so the handlers'
// silent failure paths work.
class PageEngine {
public:
    virtual ~PageEngine() = default;

    // The whole document as the engine serialises it: the doctype when the page has
    // one, HTML/HEAD/BODY upper case, other elements lower case, attribute values in
    // double quotes, CR LF line breaks, &nbsp; kept, and the generator marker in the
    // head when the page has no generator line of its own.
    virtual QString documentHTML() = 0;
    // The same, failing with 5 when the engine has not answered within deadline;
    // for the last save before the program ends, which must not wait long.
    virtual QString documentHTMLWithin(std::chrono::milliseconds deadline) {
        (void)deadline;
        return documentHTML();
    }
    virtual void setDocumentHTML(const QString& html) = 0;

    virtual void execCommand(DhtmlCommand id) = 0;

    virtual void loadDocument(const QString& path) = 0;
    virtual void saveDocument(const QString& path) = 0;
    virtual void newDocument() = 0;
    virtual void loadURL(const QString& url) = 0;

    virtual bool browseMode() const = 0;
    virtual void setBrowseMode(bool on) = 0;
    virtual bool showDetails() const = 0;
    virtual void setShowDetails(bool on) = 0;
    virtual bool snapToGrid() const = 0;
    virtual void setSnapToGrid(bool on) = 0;

    // A design surface, as the form designer and the Layout Manager use: a click
    // selects an element with a frame and eight handles; it moves by dragging,
    // resizes by its handles and nudges with the cursor keys (by the grid step with
    // snapToGrid on); a second click edits its text in place. The outcome is the
    // element's inline style, seen only through documentHTML. Browse mode turns it
    // all off; the frame and handles never reach the document.
    virtual void setDesignSurface(bool on) { (void)on; }
    virtual bool designSurface() const { return false; }
    // An element the user picks up in strip and drops on this page goes in where it
    // was dropped; the strip keeps its copy, so it can be dropped again.
    virtual void acceptDropsFrom(PageEngine& strip) { (void)strip; }

    virtual void setFocus() = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;

    // The widget that shows the page, or nullptr for an engine without one.
    virtual QWidget* widget() = 0;

    // Events. The engine calls them through the guard.
    std::function<void()> onDisplayChanged;
    std::function<void(QChar key)> onKeyPress;
    std::function<void()> onMouseMove;
};

} // namespace zt
