#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace zt {

// Serves the pages of the page engines under a URL scheme of ours, so that a page
// of any size loads (a data URL stops at 2 MB) and its relative links resolve.
//
// A page gets an address that mirrors the folder of the file it came from, on a
// host of its own: zt-doc://page7/home/me/site/index.html?zt=7, so that its
// relative links name the files beside it; the query names the page. Nothing but
// the published pages is served here: the engine's request policy sends the files
// a page shows on to their file: addresses, whose loader keeps them from the
// page's scripts.
class DocumentServer : public QWebEngineUrlSchemeHandler {
public:
    static const QByteArray& scheme();
    // Must run before the QApplication is made.
    static void registerScheme();

    // Publishes bytes as owner's page, in place of owner's previous one, and
    // answers its address. An empty folder means a page without a file.
    QUrl publish(const void* owner, const QString& folder, const QString& fileName,
                 QByteArray bytes);
    void withdraw(const void* owner);
    // The serial of a published address, or 0 for any other address.
    static quint64 serialOf(const QUrl& url);

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    struct Page {
        quint64 serial = 0;
        QByteArray bytes;
    };
    QHash<const void*, Page> m_pages;
    quint64 m_lastSerial = 0;
};

} // namespace zt
