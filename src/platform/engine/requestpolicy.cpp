#include "requestpolicy.h"

#include "documentserver.h"

namespace zt {

void RequestPolicy::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QString scheme = info.requestUrl().scheme();
    if (scheme == QLatin1String(DocumentServer::scheme()) || scheme == QLatin1String("data") ||
        scheme == QLatin1String("file") || scheme == QLatin1String("blob") ||
        scheme == QLatin1String("about"))
        return;
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")) {
        if (m_webAllowed)
            return;
        if (m_webPageRequested &&
            info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
            return;
    }
    info.block(true);
}

} // namespace zt
