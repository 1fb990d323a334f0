#include "requestpolicy.h"

#include "documentserver.h"
#include "pagefolder.h"

#include <QFileInfo>

namespace zt {

namespace {

using Info = QWebEngineUrlRequestInfo;

bool isShown(Info::ResourceType type) {
    switch (type) {
    case Info::ResourceTypeSubFrame:
    case Info::ResourceTypeStylesheet:
    case Info::ResourceTypeScript:
    case Info::ResourceTypeImage:
    case Info::ResourceTypeFontResource:
    case Info::ResourceTypeObject:
    case Info::ResourceTypeMedia:
        return true;
    default:
        return false;
    }
}

} // namespace

void RequestPolicy::setOwnPage(quint64 serial, const QString& folder) {
    m_ownSerial = serial;
    m_root = pagefolder::rootFor(folder);
    m_webPageRequested = false;
}

void RequestPolicy::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl();
    const QString scheme = url.scheme();
    const bool mainFrame = info.resourceType() == Info::ResourceTypeMainFrame;
    if (scheme == QLatin1String(DocumentServer::scheme())) {
        const bool ownPage =
            mainFrame && !m_webPageRequested && DocumentServer::serialOf(url) == m_ownSerial;
        if (!ownPage && !localFile(info, url.path(QUrl::FullyDecoded)))
            info.block(true);
        return;
    }
    if (scheme == QLatin1String("file")) {
        // A file the program asked for by address shows as a page of its own.
        const bool asked = m_webPageRequested && mainFrame;
        if (!asked && !localFile(info, url.toLocalFile()))
            info.block(true);
        return;
    }
    if (scheme == QLatin1String("data") || scheme == QLatin1String("blob") ||
        scheme == QLatin1String("about"))
        return;
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")) {
        if (m_webAllowed || (m_webPageRequested && mainFrame))
            return;
    }
    info.block(true);
}

// Lets a file that the page shows through, at its file: address; blocks the rest.
bool RequestPolicy::localFile(QWebEngineUrlRequestInfo& info, const QString& path) const {
    // In browse mode a link may take the page to another of its tree, which is then
    // a file: page, as confined as the first.
    const bool browsed = m_webAllowed && info.resourceType() == Info::ResourceTypeMainFrame;
    if (!browsed && !isShown(info.resourceType()))
        return false;
    const QUrl page = info.firstPartyUrl();
    const QString root = !m_webPageRequested ? m_root
                         : page.isLocalFile()
                             ? pagefolder::rootFor(QFileInfo(page.toLocalFile()).path())
                             : QString();
    const QString file = pagefolder::showableFile(root, path);
    if (file.isEmpty())
        return false;
    const QUrl address = QUrl::fromLocalFile(file);
    if (address != info.requestUrl())
        info.redirect(address);
    return true;
}

} // namespace zt
