#pragma once

#include <QWebEngineUrlRequestInterceptor>

#include <atomic>

namespace zt {

// What one page engine may load. An editing surface loads nothing but our own
// pages, data: URLs and local files (the images beside a document); a page in
// browse mode may load from the web as well. While the program has asked for a
// page from the web by its address, that page itself (and where its server
// redirects it) is let through in either mode; which pages the surface navigates
// to at all is decided by the engine.
class RequestPolicy : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void setWebAllowed(bool allowed) { m_webAllowed = allowed; }
    void setWebPageRequested(bool requested) { m_webPageRequested = requested; }

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

private:
    std::atomic<bool> m_webAllowed = false;
    std::atomic<bool> m_webPageRequested = false;
};

} // namespace zt
