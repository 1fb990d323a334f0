#include "documentserver.h"

#include <QBuffer>
#include <QUrlQuery>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace zt {

namespace {

const QString kSerialKey = QStringLiteral("zt");

QString hostOf(quint64 serial) {
    return QStringLiteral("page%1").arg(serial);
}

} // namespace

const QByteArray& DocumentServer::scheme() {
    static const QByteArray name("zt-doc");
    return name;
}

void DocumentServer::registerScheme() {
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    QWebEngineUrlScheme documents(scheme());
    documents.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    documents.setDefaultPort(QWebEngineUrlScheme::PortUnspecified);
    // Its pages may show local files (the request policy decides which). Not a
    // secure scheme: a page in browse mode may then load from plain http as it
    // would from a file. Not a local one either: the engine lets local pages reach
    // across origins in ways it lets no other page.
    documents.setFlags(QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(documents);
}

QUrl DocumentServer::publish(const void* owner, const QString& folder, const QString& fileName,
                             QByteArray bytes) {
    Page& page = m_pages[owner];
    page.serial = ++m_lastSerial;
    page.bytes = std::move(bytes);

    QUrl url;
    url.setScheme(QString::fromLatin1(scheme()));
    // A host of its own makes each page an origin of its own: no page shares
    // storage, messages or anything else with another.
    url.setHost(hostOf(page.serial));
    const QString name = fileName.isEmpty() ? QStringLiteral("untitled.html") : fileName;
    if (folder.isEmpty())
        url.setPath(u'/' + name);
    else
        url.setPath(folder.endsWith(u'/') ? folder + name : folder + u'/' + name);
    url.setQuery(kSerialKey + u'=' + QString::number(page.serial));
    return url;
}

void DocumentServer::withdraw(const void* owner) {
    m_pages.remove(owner);
}

quint64 DocumentServer::serialOf(const QUrl& url) {
    if (url.scheme() != QLatin1String(scheme()))
        return 0;
    return QUrlQuery(url).queryItemValue(kSerialKey).toULongLong();
}

void DocumentServer::requestStarted(QWebEngineUrlRequestJob* job) {
    const QUrl url = job->requestUrl();
    if (job->requestMethod() != "GET") {
        job->fail(QWebEngineUrlRequestJob::RequestDenied);
        return;
    }
    if (const quint64 serial = serialOf(url); url.host() == hostOf(serial)) {
        for (const Page& page : std::as_const(m_pages)) {
            if (page.serial != serial)
                continue;
            auto* buffer = new QBuffer(job);
            buffer->setData(page.bytes);
            buffer->open(QIODevice::ReadOnly);
            job->reply("text/html", buffer);
            return;
        }
    }
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
}

} // namespace zt
