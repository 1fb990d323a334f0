#include "memoryengine.h"

#include "pagetext.h"
#include "platform/desktop.h"
#include "platform/guard.h"
#include "platform/runtimefailure.h"
#include "platform/textfiles.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace zt {

namespace {

// The blank page, laid out as the real engine writes it.
const QString kBlankPage =
    QStringLiteral("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY></BODY>\r\n</HTML>\r\n");

const QRegularExpression& frameTag() {
    static const QRegularExpression tag(QStringLiteral(R"(<(/?)(html|head|body)(?=[\s>/]))"),
                                        QRegularExpression::CaseInsensitiveOption);
    return tag;
}

QRegularExpressionMatch firstStartTag(const QString& text, const QString& name) {
    const QRegularExpression tag(QStringLiteral("<%1(?=[\\s>/])[^>]*>").arg(name),
                                 QRegularExpression::CaseInsensitiveOption);
    return tag.match(text);
}

// A text with no frame tags at all is a fragment; the real engine parses it into
// the body of a page, so it is shown as one.
QString asPage(const QString& text) {
    if (frameTag().match(text).hasMatch())
        return text;
    QString content = text;
    while (!content.isEmpty() && content.back().isSpace())
        content.chop(1);
    if (!content.isEmpty())
        content += QLatin1String("\r\n");
    return QStringLiteral("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>%1</BODY>\r\n</HTML>\r\n")
        .arg(content);
}

// Behind a start tag and the line break that follows it.
qsizetype afterTagLine(const QString& text, const QRegularExpressionMatch& tag) {
    qsizetype at = tag.capturedEnd();
    if (text.mid(at, 2) == QLatin1String("\r\n"))
        return at + 2;
    if (at < text.size() && (text[at] == u'\n' || text[at] == u'\r'))
        return at + 1;
    return at;
}

QString withMarker(QString page) {
    const QString line = kEngineGeneratorMarker + QLatin1String("\r\n");
    if (const auto head = firstStartTag(page, QStringLiteral("head")); head.hasMatch())
        return page.insert(afterTagLine(page, head), line);
    const QString head = QLatin1String("<HEAD>\r\n") + line + QLatin1String("</HEAD>\r\n");
    if (const auto html = firstStartTag(page, QStringLiteral("html")); html.hasMatch())
        return page.insert(afterTagLine(page, html), head);
    return page.prepend(head);
}

QString withUpperFrameTags(const QString& page) {
    QString result;
    result.reserve(page.size());
    qsizetype done = 0;
    auto tags = frameTag().globalMatch(page);
    while (tags.hasNext()) {
        const auto tag = tags.next();
        result += QStringView(page).mid(done, tag.capturedStart(2) - done);
        result += tag.captured(2).toUpper();
        done = tag.capturedEnd(2);
    }
    result += QStringView(page).mid(done);
    return result;
}

QString plainTextOf(const QString& html) {
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    QString text = html;
    text.remove(tag);
    text.replace(QLatin1String("&nbsp;"), QLatin1String(" "), Qt::CaseInsensitive);
    text.replace(QLatin1String("&lt;"), QLatin1String("<"), Qt::CaseInsensitive);
    text.replace(QLatin1String("&gt;"), QLatin1String(">"), Qt::CaseInsensitive);
    text.replace(QLatin1String("&quot;"), QLatin1String("\""), Qt::CaseInsensitive);
    text.replace(QLatin1String("&#39;"), QLatin1String("'"));
    text.replace(QLatin1String("&amp;"), QLatin1String("&"), Qt::CaseInsensitive);
    return pagetext::withCrLf(text);
}

} // namespace

MemoryEngine::MemoryEngine(Clipboard& clipboard) : m_clipboard(clipboard), m_text(kBlankPage) {}

QString MemoryEngine::documentHTML() {
    QString page = asPage(m_text);
    if (pagetext::generatorMetaTags(page).isEmpty())
        page = withMarker(page);
    return pagetext::withCrLf(withUpperFrameTags(page));
}

void MemoryEngine::setDocumentHTML(const QString& html) {
    m_text = html;
    m_selectionStart = 0;
    m_selectionLength = 0;
    m_hasSelection = false;
    m_undo.clear();
    m_redo.clear();
}

void MemoryEngine::execCommand(DhtmlCommand id) {
    switch (id) {
    case DECMD_SELECTALL:
        setSelection(0, int(bodyContent().size()));
        break;
    case DECMD_COPY:
        copySelection();
        break;
    case DECMD_CUT:
    case DECMD_DELETE:
        requireEditable();
        if (m_selectionLength == 0)
            throw RuntimeFailure::invalidProcedureCall();
        if (id == DECMD_CUT)
            copySelection();
        remember();
        replaceSelection(QString());
        break;
    case DECMD_PASTE: {
        requireEditable();
        const QString html = pagetext::htmlToPaste(m_clipboard);
        remember();
        replaceSelection(html);
        break;
    }
    case DECMD_UNDO:
        requireEditable();
        replay(m_undo, m_redo);
        break;
    case DECMD_REDO:
        requireEditable();
        replay(m_redo, m_undo);
        break;
    default:
        requireEditable();
        runFormatting(id);
        break;
    }
    m_executed.append(id);
}

void MemoryEngine::runFormatting(DhtmlCommand id) {
    static const QList<DhtmlCommand> tableCommands{
        DECMD_INSERTROW,  DECMD_INSERTCOL,   DECMD_INSERTCELL, DECMD_DELETEROWS,
        DECMD_DELETECOLS, DECMD_DELETECELLS, DECMD_MERGECELLS, DECMD_SPLITCELL};
    static const QList<DhtmlCommand> zOrderCommands{DECMD_BRING_TO_FRONT,   DECMD_BRING_FORWARD,
                                                    DECMD_BRING_ABOVE_TEXT, DECMD_SEND_TO_BACK,
                                                    DECMD_SEND_BACKWARD,    DECMD_SEND_BELOW_TEXT};
    static const QList<DhtmlCommand> otherCommands{
        DECMD_FONT,         DECMD_IMAGE,     DECMD_HYPERLINK,   DECMD_FINDTEXT,
        DECMD_INDENT,       DECMD_OUTDENT,   DECMD_JUSTIFYLEFT, DECMD_JUSTIFYCENTER,
        DECMD_JUSTIFYRIGHT, DECMD_ORDERLIST, DECMD_UNORDERLIST, DECMD_REMOVEFORMAT,
        DECMD_UNLINK};
    const QString wrap = id == DECMD_BOLD        ? QStringLiteral("b")
                         : id == DECMD_ITALIC    ? QStringLiteral("i")
                         : id == DECMD_UNDERLINE ? QStringLiteral("u")
                                                 : QString();
    if (wrap.isEmpty() && !tableCommands.contains(id) && !zOrderCommands.contains(id) &&
        !otherCommands.contains(id))
        throw RuntimeFailure::invalidProcedureCall();
    // Find looks through the whole page from wherever the selection is, or none.
    if (id != DECMD_FINDTEXT)
        requireSelection();
    if (tableCommands.contains(id) &&
        !insideOf(QStringLiteral("<t[dh](?=[\\s>])"), QStringLiteral("</t[dh]>")))
        throw RuntimeFailure::invalidProcedureCall();
    if (zOrderCommands.contains(id) &&
        !insideOf(QStringLiteral("<div[^>]*position\\s*:[^>]*>"), QStringLiteral("</div>")))
        throw RuntimeFailure::invalidProcedureCall();
    if (wrap.isEmpty())
        return;
    remember();
    const int start = m_selectionStart;
    replaceSelection(QStringLiteral("<%1>%2</%1>").arg(wrap, selectedHtml()));
    setSelection(start, m_selectionStart - start);
}

void MemoryEngine::loadDocument(const QString& path) {
    setDocumentHTML(textfiles::readAll(path));
}

void MemoryEngine::saveDocument(const QString& path) {
    textfiles::write(path, documentHTML());
}

void MemoryEngine::newDocument() {
    setDocumentHTML(kBlankPage);
}

void MemoryEngine::loadURL(const QString& url) {
    m_url = url;
    const QUrl address(url);
    if (address.isLocalFile())
        loadDocument(address.toLocalFile());
    else
        newDocument();
}

void MemoryEngine::dropFromStrip() {
    requireEditable();
    if (!m_strip)
        throw RuntimeFailure::invalidProcedureCall();
    const QString strip = m_strip->documentHTML();
    const auto body = firstStartTag(strip, QStringLiteral("body"));
    const qsizetype end = strip.lastIndexOf(QLatin1String("</BODY>"));
    const QString content = body.hasMatch() && end > body.capturedEnd()
                                ? strip.mid(body.capturedEnd(), end - body.capturedEnd()).trimmed()
                                : QString();
    if (content.isEmpty())
        throw RuntimeFailure::invalidProcedureCall();
    remember();
    const Span span = bodySpan();
    m_text.insert(span.end, content);
}

void MemoryEngine::setSelection(int start, int length) {
    const int size = int(bodyContent().size());
    m_selectionStart = std::clamp(start, 0, size);
    m_selectionLength = std::clamp(length, 0, size - m_selectionStart);
    m_hasSelection = true;
}

bool MemoryEngine::selectText(const QString& text) {
    const qsizetype at = bodyContent().indexOf(text);
    if (at < 0 || text.isEmpty())
        return false;
    setSelection(int(at), int(text.size()));
    return true;
}

QString MemoryEngine::bodyContent() const {
    const Span body = bodySpan();
    return m_text.mid(body.start, body.end - body.start);
}

void MemoryEngine::typeKey(QChar key) {
    remember();
    replaceSelection(pagetext::htmlOfPlainText(QString(key)));
    if (onKeyPress)
        Guard::run([&] { onKeyPress(key); });
}

void MemoryEngine::moveMouse() {
    if (onMouseMove)
        Guard::run([&] { onMouseMove(); });
}

void MemoryEngine::changeDisplay() {
    if (onDisplayChanged)
        Guard::run([&] { onDisplayChanged(); });
}

MemoryEngine::Span MemoryEngine::bodySpan() const {
    if (!frameTag().match(m_text).hasMatch())
        return {0, m_text.size()};
    const auto body = firstStartTag(m_text, QStringLiteral("body"));
    if (!body.hasMatch())
        return {m_text.size(), m_text.size()};
    const qsizetype end = m_text.lastIndexOf(QLatin1String("</body"), -1, Qt::CaseInsensitive);
    return {body.capturedEnd(), std::max(end, body.capturedEnd())};
}

QString MemoryEngine::selectedHtml() const {
    return bodyContent().mid(m_selectionStart, m_selectionLength);
}

// A caret copies nothing and leaves the clipboard as it was.
void MemoryEngine::copySelection() {
    if (m_selectionLength == 0)
        return;
    const QString html = selectedHtml();
    m_clipboard.setHtml(html, plainTextOf(html));
}

void MemoryEngine::replaceSelection(const QString& html) {
    const Span body = bodySpan();
    m_text.replace(body.start + m_selectionStart, m_selectionLength, html);
    m_selectionStart += int(html.size());
    m_selectionLength = 0;
}

void MemoryEngine::requireSelection() const {
    if (!m_hasSelection)
        throw RuntimeFailure::invalidProcedureCall();
}

bool MemoryEngine::insideOf(const QString& startPattern, const QString& endTag) const {
    const QString before = bodyContent().left(m_selectionStart);
    const QRegularExpression start(startPattern, QRegularExpression::CaseInsensitiveOption);
    const QRegularExpression end(endTag, QRegularExpression::CaseInsensitiveOption);
    return before.count(start) > before.count(end);
}

// The page as it was before a change, for Undo; a change ends what Redo had.
void MemoryEngine::remember() {
    m_undo.append(m_text);
    m_redo.clear();
}

void MemoryEngine::replay(QList<QString>& from, QList<QString>& to) {
    if (from.isEmpty())
        throw RuntimeFailure::invalidProcedureCall();
    to.append(m_text);
    m_text = from.takeLast();
    setSelection(0, 0);
}

void MemoryEngine::requireEditable() const {
    if (m_browseMode)
        throw RuntimeFailure::invalidProcedureCall();
}

} // namespace zt
