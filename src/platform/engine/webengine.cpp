#include "webengine.h"

#include "documentserver.h"
#include "enginescripts.h"
#include "finddialog.h"
#include "fontdialog.h"
#include "imagedialog.h"
#include "linkdialog.h"
#include "pageprofile.h"
#include "pagetext.h"
#include "pendinganswer.h"
#include "platform/desktop.h"
#include "platform/guard.h"
#include "platform/runtimefailure.h"
#include "platform/textfiles.h"
#include "requestpolicy.h"
#include "stripdrag.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNavigationRequest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineSettings>
#include <QWebEngineView>

#include <chrono>

namespace zt {

namespace {

using namespace std::chrono_literals;

// Long enough for a 10 MB page on a display without graphics acceleration, where
// laying it out alone takes about ten seconds; a shorter wait would refuse pages
// that load.
constexpr std::chrono::milliseconds kDeadline = 30s;
// While a navigation is under way the engine asks the page every little while
// whether the new document is there; a question the old document drops on its way
// out goes unanswered, so each has a short wait of its own.
constexpr std::chrono::milliseconds kProbeDeadline = 500ms;
constexpr std::chrono::milliseconds kProbeInterval = 10ms;

const QString kBlankPage = QStringLiteral("<HTML><HEAD></HEAD><BODY></BODY></HTML>");

// The commands that are one command of our scripts each, by the script's name for
// it. A command that edits is refused in browse mode.
struct ScriptCommand {
    DhtmlCommand id;
    const char* name;
    bool edits = true;
};

const ScriptCommand* scriptCommand(DhtmlCommand id) {
    static const ScriptCommand commands[] = {
        {DECMD_SELECTALL, "selectAll", false},
        {DECMD_DELETE, "remove"},
        {DECMD_UNDO, "undo"},
        {DECMD_REDO, "redo"},
        {DECMD_BOLD, "bold"},
        {DECMD_ITALIC, "italic"},
        {DECMD_UNDERLINE, "underline"},
        {DECMD_REMOVEFORMAT, "removeFormat"},
        {DECMD_UNLINK, "unlink"},
        {DECMD_ORDERLIST, "insertOrderedList"},
        {DECMD_UNORDERLIST, "insertUnorderedList"},
        {DECMD_INDENT, "indent"},
        {DECMD_OUTDENT, "outdent"},
        {DECMD_JUSTIFYLEFT, "justifyLeft"},
        {DECMD_JUSTIFYCENTER, "justifyCenter"},
        {DECMD_JUSTIFYRIGHT, "justifyRight"},
        {DECMD_BRING_TO_FRONT, "bringToFront"},
        {DECMD_BRING_FORWARD, "bringForward"},
        {DECMD_BRING_ABOVE_TEXT, "bringAboveText"},
        {DECMD_SEND_TO_BACK, "sendToBack"},
        {DECMD_SEND_BACKWARD, "sendBackward"},
        {DECMD_SEND_BELOW_TEXT, "sendBelowText"},
        {DECMD_INSERTROW, "insertRow"},
        {DECMD_INSERTCOL, "insertColumn"},
        {DECMD_INSERTCELL, "insertCell"},
        {DECMD_DELETEROWS, "deleteRows"},
        {DECMD_DELETECOLS, "deleteColumns"},
        {DECMD_DELETECELLS, "deleteCells"},
        {DECMD_MERGECELLS, "mergeCells"},
        {DECMD_SPLITCELL, "splitCell"},
    };
    for (const ScriptCommand& command : commands) {
        if (command.id == id)
            return &command;
    }
    return nullptr;
}

QByteArray servedBytes(const QString& html) {
    // The byte order mark decides the encoding over anything the page declares: the
    // text is already decoded, whatever its meta tags say.
    return QByteArray("\xEF\xBB\xBF") + html.toUtf8();
}

// Disconnects a connection when the wait that needed it ends, by answer or failure.
struct ScopedConnection {
    QMetaObject::Connection connection;
    ~ScopedConnection() { QObject::disconnect(connection); }
};

} // namespace

WebPageEngine::WebPageEngine(Clipboard& clipboard, QWidget* parent)
    : m_clipboard(clipboard), m_profile(PageProfile::shared()),
      m_alive(std::make_shared<bool>(true)) {
    m_view = new QWebEngineView(parent);
    m_page = new QWebEnginePage(m_profile->profile(), m_view);
    m_policy = new RequestPolicy(m_page);
    m_page->setUrlRequestInterceptor(m_policy);
    m_page->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    m_view->setPage(m_page);
    m_view->installEventFilter(this);

    connect(m_page, &QWebEnginePage::loadFinished, this, [this] {
        watchInput();
        // A page that came by navigation into an editing surface is edited too.
        if (!m_browseMode && !showsOwnPage())
            m_page->runJavaScript(enginescripts::call("ztSetEditable", {{"editable", true}}),
                                  QWebEngineScript::ApplicationWorld);
        if (!m_browseMode)
            tellSurface();
        scheduleDisplayChanged();
    });
    connect(m_page, &QWebEnginePage::selectionChanged, this,
            &WebPageEngine::scheduleDisplayChanged);
    // An editing surface goes nowhere by itself: a link, a refresh or a script of
    // the page cannot take the document away.
    connect(m_page, &QWebEnginePage::navigationRequested, this,
            [this](QWebEngineNavigationRequest& request) {
                const quint64 serial = DocumentServer::serialOf(request.url());
                if (m_browseMode || !request.isMainFrame() ||
                    request.navigationType() == QWebEngineNavigationRequest::RedirectNavigation ||
                    (serial != 0 && serial == m_ownSerial) ||
                    (serial == 0 && request.url() == m_expectedPage))
                    return;
                request.reject();
            });
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { showContextMenu(at); });
    watchInput();
    // The control comes up holding an empty page that can be typed into, as the
    // in-memory engine does; without it the view would show a page that is neither
    // editable nor repainted when the program writes into it.
    newDocument();
}

WebPageEngine::~WebPageEngine() {
    *m_alive = false;
    m_profile->server().withdraw(this);
    if (m_inputWidget)
        m_inputWidget->removeEventFilter(this);
    // The page goes with its view, and before the profile.
    delete m_view;
}

void WebPageEngine::registerSchemes() {
    DocumentServer::registerScheme();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

QString WebPageEngine::documentHTML() {
    return serialize(true, kDeadline);
}

QString WebPageEngine::documentHTMLWithin(std::chrono::milliseconds deadline) {
    // A page still on its way has no text to give within a short wait.
    if (m_navigating)
        throw RuntimeFailure::invalidProcedureCall();
    return serialize(true, deadline);
}

void WebPageEngine::setDocumentHTML(const QString& html) {
    showPage(html);
}

void WebPageEngine::execCommand(DhtmlCommand id) {
    switch (id) {
    case DECMD_COPY:
        copyToClipboard(edit(QStringLiteral("copy")));
        return;
    case DECMD_CUT:
        requireEditable();
        copyToClipboard(edit(QStringLiteral("cut")));
        return;
    case DECMD_PASTE: {
        requireEditable();
        const QString html = pagetext::htmlToPaste(m_clipboard);
        edit(QStringLiteral("paste"), {{"html", html}});
        return;
    }
    case DECMD_FONT:
    case DECMD_IMAGE:
    case DECMD_HYPERLINK:
    case DECMD_FINDTEXT:
        runDialog(id);
        return;
    default:
        break;
    }
    const ScriptCommand* command = scriptCommand(id);
    if (!command)
        throw RuntimeFailure::invalidProcedureCall();
    if (command->edits)
        requireEditable();
    edit(QLatin1String(command->name));
}

// The editing control's own dialogs, modal over the view, working on the page's
// selection.
void WebPageEngine::runDialog(DhtmlCommand id) {
    requireEditable();
    const PageCall page = [this](const QString& command, const QJsonObject& args) {
        return edit(command, args);
    };
    if (id == DECMD_FONT)
        runFontDialog(m_view, page);
    else if (id == DECMD_IMAGE)
        runImageDialog(m_view, m_folder, page);
    else if (id == DECMD_HYPERLINK)
        runLinkDialog(m_view, page);
    else
        runFindDialog(m_view, page);
}

void WebPageEngine::loadDocument(const QString& path) {
    const QString text = textfiles::readAll(path);
    const QFileInfo file(path);
    m_folder = file.absolutePath();
    m_fileName = file.fileName();
    m_shellUrl.clear();
    showPage(text);
}

void WebPageEngine::saveDocument(const QString& path) {
    textfiles::write(path, documentHTML());
}

void WebPageEngine::newDocument() {
    m_folder.clear();
    m_fileName.clear();
    m_shellUrl.clear();
    showPage(kBlankPage);
}

void WebPageEngine::loadURL(const QString& url) {
    const QUrl address(url);
    const QString scheme = address.scheme();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https") &&
        scheme != QLatin1String("file"))
        throw RuntimeFailure::invalidProcedureCall();
    m_shellUrl.clear();
    m_givenGenerators.clear();
    m_expectedPage = address;
    m_policy->setWebPageRequested(true);
    startNavigation(address, 0);
}

void WebPageEngine::setBrowseMode(bool on) {
    if (on == m_browseMode)
        return;
    // The page is shown again in the new mode: what was edited goes to browse mode
    // (where its scripts now run), and leaving it shows the page as it was before
    // its scripts ran.
    const bool ownPage = showsOwnPage();
    const QString text = !ownPage ? QString() : on ? serialize(false, kDeadline) : m_browseSource;
    m_browseMode = on;
    QWebEngineSettings* settings = page()->settings();
    settings->setAttribute(QWebEngineSettings::JavascriptEnabled, on);
    m_policy->setWebAllowed(on);
    if (ownPage) {
        showPage(text);
    } else {
        runScript("ztSetEditable", {{"editable", !on}});
        tellSurface();
    }
}

void WebPageEngine::setShowDetails(bool on) {
    m_showDetails = on;
    if (!m_browseMode)
        tellSurface();
}

void WebPageEngine::setSnapToGrid(bool on) {
    m_snapToGrid = on;
    if (!m_browseMode)
        tellSurface();
}

void WebPageEngine::setDesignSurface(bool on) {
    m_designSurface = on;
    if (!m_browseMode)
        tellSurface();
}

void WebPageEngine::acceptDropsFrom(PageEngine& strip) {
    auto* source = dynamic_cast<WebPageEngine*>(&strip);
    if (!source || source == this)
        return;
    source->m_dropTarget = this;
    if (!source->m_stripDrag)
        source->m_stripDrag = std::make_unique<StripDrag>(
            [source](const QPoint& global) { source->dropOnTarget(global); });
}

// The strip's content goes in where the pointer was let go, when that is over the
// target's page. The pages are asked after the event, outside the filter that saw it.
void WebPageEngine::dropOnTarget(const QPoint& global) {
    WebPageEngine* target = m_dropTarget;
    if (!target || !target->m_view || target->m_browseMode || m_browseMode)
        return;
    QWidget* view = target->m_view;
    const QPoint at = view->mapFromGlobal(global);
    if (!view->isVisible() || !view->rect().contains(at))
        return;
    QTimer::singleShot(0, target, [strip = QPointer<WebPageEngine>(this), target, at] {
        Guard::run([&] {
            orEndSilently([&] {
                if (!strip)
                    return;
                const QString html = strip->edit(QStringLiteral("stripContent"))
                                         .value(QStringLiteral("html"))
                                         .toString();
                const qreal zoom = target->page()->zoomFactor();
                target->edit(QStringLiteral("dropAt"),
                             {{"html", html}, {"x", at.x() / zoom}, {"y", at.y() / zoom}});
                target->setFocus();
            });
        });
    });
}

void WebPageEngine::setFocus() {
    if (m_view)
        m_view->setFocus();
}

bool WebPageEngine::isVisible() const {
    return m_view && !m_view->isHidden();
}

void WebPageEngine::setVisible(bool visible) {
    if (m_view)
        m_view->setVisible(visible);
}

QWidget* WebPageEngine::widget() {
    return m_view;
}

bool WebPageEngine::selectText(const QString& text) {
    try {
        edit(QStringLiteral("selectText"), {{"text", text}});
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

bool WebPageEngine::eventFilter(QObject* watched, QEvent* event) {
    // The event's type is asked first: while the view dies its children leave it, and
    // by then it is no longer a view that a guarded pointer may be read as.
    if (event->type() == QEvent::ChildAdded && watched == m_view) {
        QTimer::singleShot(0, this, &WebPageEngine::watchInput);
    } else if (event->type() == QEvent::KeyPress && watched == m_inputWidget) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        // Character keys only, Enter among them, as a page's keypress event has it.
        if (onKeyPress && !text.isEmpty() && (text[0].isPrint() || text[0] == u'\r')) {
            const QChar key = text[0];
            Guard::run([&] { onKeyPress(key); });
        }
    } else if (event->type() == QEvent::MouseMove && watched == m_inputWidget) {
        if (onMouseMove)
            Guard::run([&] { onMouseMove(); });
    }
    if (watched == m_inputWidget && m_stripDrag && m_dropTarget && !m_browseMode &&
        m_stripDrag->filter(event))
        return true;
    return QObject::eventFilter(watched, event);
}

QWebEnginePage* WebPageEngine::page() const {
    if (!m_page)
        throw RuntimeFailure::objectNotSet();
    return m_page;
}

QVariant WebPageEngine::await(const PendingAnswer& answer, std::chrono::milliseconds deadline) {
    // The wait lets events through; one of them may end this engine.
    const std::shared_ptr<bool> alive = m_alive;
    QVariant value = answer.wait(deadline);
    if (!*alive)
        throw RuntimeFailure::objectNotSet();
    return value;
}

QVariant WebPageEngine::runScript(const char* function, const QJsonObject& args) {
    settle();
    return runScriptNow(function, args, kDeadline);
}

QVariant WebPageEngine::runScriptNow(const char* function, const QJsonObject& args,
                                     std::chrono::milliseconds deadline) {
    PendingAnswer answer;
    page()->runJavaScript(enginescripts::call(function, args), QWebEngineScript::ApplicationWorld,
                          [answer](const QVariant& value) { answer.finish(value); });
    return await(answer, deadline);
}

QVariantMap WebPageEngine::edit(const QString& command, QJsonObject args) {
    args.insert(QStringLiteral("command"), command);
    args.insert(QStringLiteral("givenGenerators"), QJsonArray::fromStringList(m_givenGenerators));
    const QVariantMap answer = runScript("ztEdit", args).toMap();
    if (!answer.value(QStringLiteral("ok")).toBool())
        throw RuntimeFailure::invalidProcedureCall();
    return answer;
}

// Waits for a navigation that is under way, such as a page asked for by address.
void WebPageEngine::settle() {
    if (m_navigating)
        awaitDocument(m_navigationCount);
}

quint64 WebPageEngine::startNavigation(const QUrl& url, quint64 serial) {
    const quint64 navigation = ++m_navigationCount;
    // A document that does not answer has nothing to mark, and cannot be mistaken
    // for the next one either.
    try {
        runScriptNow("ztMarkDocument", {}, kProbeDeadline);
    } catch (const RuntimeFailure&) {
    }
    if (m_navigationCount != navigation)
        return 0;
    m_navigationSerial = serial;
    m_navigating = true;
    page()->load(url);
    return navigation;
}

// Until the surface shows the new document, parsed. Waiting for the whole load
// instead would hang on a page whose images come slowly from the web. A load that
// ends well may be reported before the document answers as the new one, so only
// a failure ends the wait early: for a page of ours by throwing, for a page asked
// for by address by leaving whatever came on show. False when a later navigation,
// started by an event during the wait, took the place of this one.
bool WebPageEngine::awaitDocument(quint64 navigation) {
    const quint64 serial = m_navigationSerial;
    bool ended = false;
    bool failed = false;
    ScopedConnection loading{connect(
        page(), &QWebEnginePage::loadingChanged, this,
        [&, serial](const QWebEngineLoadingInfo& info) {
            const bool ours = DocumentServer::serialOf(info.url()) == serial;
            if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus || (serial != 0 && !ours))
                return;
            ended = true;
            failed = info.status() != QWebEngineLoadingInfo::LoadSucceededStatus;
        })};
    const QDeadlineTimer deadline(kDeadline);
    for (;;) {
        QVariantMap probe;
        try {
            probe = runScriptNow("ztProbeDocument", {}, kProbeDeadline).toMap();
        } catch (const RuntimeFailure&) {
            // A document on its way out may drop the question.
        }
        if (m_navigationCount != navigation)
            return false;
        const QUrl href(probe.value(QStringLiteral("href")).toString());
        if (probe.value(QStringLiteral("fresh")).toBool() &&
            probe.value(QStringLiteral("parsed")).toBool() &&
            (serial == 0 || DocumentServer::serialOf(href) == serial))
            break;
        if ((ended && failed) || deadline.hasExpired()) {
            m_navigating = false;
            if (serial == 0 && !deadline.hasExpired())
                return true;
            throw RuntimeFailure::invalidProcedureCall();
        }
        PendingAnswer pause;
        QTimer::singleShot(kProbeInterval, [pause] { pause.finish(true); });
        await(pause, kDeadline);
        if (m_navigationCount != navigation)
            return false;
    }
    m_navigating = false;
    return true;
}

bool WebPageEngine::navigate(const QUrl& url) {
    const quint64 navigation = startNavigation(url, DocumentServer::serialOf(url));
    return navigation != 0 && awaitDocument(navigation);
}

void WebPageEngine::showPage(const QString& html) {
    m_givenGenerators = pagetext::generatorMetaTags(html);
    if (m_browseMode) {
        m_browseSource = html;
        m_shellUrl.clear();
        if (navigate(publish(html)))
            runScript("ztTrimBodyEndOfPage", {});
        return;
    }
    // At most two rounds: the second in a shell of the mode the page asked for. A
    // page set while this one waited for its shell wins, as the later one.
    for (int round = 0; round < 2; ++round) {
        if ((m_shellUrl.isEmpty() || page()->url() != m_shellUrl) && !loadShell())
            return;
        const QVariantMap answer =
            runScript("ztLoadPage", {{"html", html}, {"editable", true}}).toMap();
        if (answer.value(QStringLiteral("loaded")).toBool()) {
            tellSurface();
            scheduleDisplayChanged();
            return;
        }
        m_shellDoctype = answer.value(QStringLiteral("doctype")).toString();
        m_shellUrl.clear();
    }
    throw RuntimeFailure::invalidProcedureCall();
}

// Our scheme serves html as this surface's page, which may show the files of the
// document's folder tree and nothing else.
QUrl WebPageEngine::publish(const QString& html) {
    const QUrl url = m_profile->server().publish(this, m_folder, m_fileName, servedBytes(html));
    m_ownSerial = DocumentServer::serialOf(url);
    m_policy->setOwnPage(m_ownSerial, m_folder);
    return url;
}

// The shell decides the page's base address and its layout mode (by its doctype).
bool WebPageEngine::loadShell() {
    const QString shell =
        m_shellDoctype + QStringLiteral("<html><head></head><body></body></html>");
    m_shellUrl.clear();
    if (!navigate(publish(shell)))
        return false;
    m_shellUrl = page()->url();
    return true;
}

QString WebPageEngine::serialize(bool withMarker, std::chrono::milliseconds deadline) {
    const QJsonObject args{
        {"marker", withMarker ? QJsonValue(kEngineGeneratorMarker) : QJsonValue()},
        {"givenGenerators", QJsonArray::fromStringList(m_givenGenerators)},
        {"scripting", m_browseMode},
    };
    settle();
    const QVariant text = runScriptNow("ztSerializePage", args, deadline);
    if (text.typeId() != QMetaType::QString)
        throw RuntimeFailure::invalidProcedureCall();
    return pagetext::withCrLf(text.toString());
}

// A caret copies nothing and leaves the clipboard as it was.
void WebPageEngine::copyToClipboard(const QVariantMap& answer) {
    if (answer.value(QStringLiteral("empty")).toBool())
        return;
    m_clipboard.setHtml(pagetext::withCrLf(answer.value(QStringLiteral("html")).toString()),
                        pagetext::withCrLf(answer.value(QStringLiteral("text")).toString()));
}

// The editing surface's own menu: the browser's would undo by a history of its own
// and copy around the program's clipboard.
void WebPageEngine::showContextMenu(const QPoint& at) {
    static const std::pair<const char*, DhtmlCommand> entries[] = {
        {"Undo", DECMD_UNDO},     {"Redo", DECMD_REDO},  {nullptr, DECMD_UNDO},
        {"Cut", DECMD_CUT},       {"Copy", DECMD_COPY},  {"Paste", DECMD_PASTE},
        {"Delete", DECMD_DELETE}, {nullptr, DECMD_UNDO}, {"Select All", DECMD_SELECTALL},
    };
    QMenu menu(m_view);
    for (const auto& [text, id] : entries) {
        if (!text) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(QString::fromLatin1(text));
        action->setEnabled(!m_browseMode || id == DECMD_COPY || id == DECMD_SELECTALL);
        connect(action, &QAction::triggered, this, [this, id = id] {
            // A command that does not apply does nothing, as from the program's menus.
            Guard::run([&] { orEndSilently([&] { execCommand(id); }); });
        });
    }
    menu.exec(m_view->mapToGlobal(at));
}

void WebPageEngine::requireEditable() const {
    if (m_browseMode)
        throw RuntimeFailure::invalidProcedureCall();
}

// Snap and details reach the page without a wait: the menu commands that set them
// have no failure to end in, and the page's next script runs after this one. A
// page that comes later is told again when it is there.
void WebPageEngine::tellSurface() {
    if (!m_page)
        return;
    const QJsonObject args{
        {"editing", !m_browseMode},
        {"snap", m_snapToGrid},
        {"details", m_showDetails},
        {"design", m_designSurface},
    };
    m_page->runJavaScript(enginescripts::call("ztSetSurface", args),
                          QWebEngineScript::ApplicationWorld);
}

bool WebPageEngine::showsOwnPage() const {
    return m_page && m_ownSerial != 0 && DocumentServer::serialOf(m_page->url()) == m_ownSerial;
}

// The event comes from the event loop, never from inside a call of the program,
// and several changes in a row raise it once.
void WebPageEngine::scheduleDisplayChanged() {
    if (m_displayChangePending)
        return;
    m_displayChangePending = true;
    QTimer::singleShot(0, this, [this] {
        m_displayChangePending = false;
        if (onDisplayChanged)
            Guard::run([&] { onDisplayChanged(); });
    });
}

// Keys and the pointer reach the widget that renders the page, which the view
// makes and replaces as it needs; the engine listens to whichever it is now.
void WebPageEngine::watchInput() {
    QWidget* target = m_view ? m_view->focusProxy() : nullptr;
    if (!target || target == m_inputWidget)
        return;
    if (m_inputWidget)
        m_inputWidget->removeEventFilter(this);
    target->installEventFilter(this);
    m_inputWidget = target;
}

} // namespace zt
