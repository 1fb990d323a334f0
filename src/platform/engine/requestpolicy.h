#pragma once

#include <QString>
#include <QWebEngineUrlRequestInterceptor>

#include <atomic>

namespace zt {

// What one page engine may load.
//
// A page lives in an origin of its own (see DocumentServer), so everything it
// loads is another origin's and its scripts can show it but not read it, as long
// as it comes from a loader that marks it so: the web's and the file loader do,
// our scheme's cannot. A local file therefore never comes through our scheme:
// a request for one at the page's address is sent on to its file: address, and
// only what a page shows is let through at all (style sheets, scripts, images,
// fonts, media, frames), and only files of the page's own folder tree
// (pagefolder.h). Reads by script (XMLHttpRequest, fetch), workers, pings and
// the like reach no local file at all.
//
// An editing surface loads nothing from the web; a page in browse mode may, as
// its own doing. While the program has asked for a page by its address, that page
// (and where its server redirects it) is let through in either mode, with the
// files it shows when it is a local one.
class RequestPolicy : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void setWebAllowed(bool allowed) { m_webAllowed = allowed; }
    void setWebPageRequested(bool requested) { m_webPageRequested = requested; }
    // The page of ours the surface shows, and the folder of its document (empty
    // for a document without a file, which may show no local file).
    void setOwnPage(quint64 serial, const QString& folder);

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

private:
    bool localFile(QWebEngineUrlRequestInfo& info, const QString& path) const;

    std::atomic<bool> m_webAllowed = false;
    std::atomic<bool> m_webPageRequested = false;
    quint64 m_ownSerial = 0;
    QString m_root;
};

} // namespace zt
