#include "documentserver.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrlQuery>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace zt {

namespace {

const QString kPageHost = QStringLiteral("page");
const QString kBlankHost = QStringLiteral("blank");
const QString kSerialKey = QStringLiteral("zt");

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
    // A local scheme like file: pages elsewhere cannot reach it, and its pages may
    // show local files. Not a secure one: a page in browse mode may then load from
    // plain http as it would from a file.
    documents.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(documents);
}

QUrl DocumentServer::publish(const void* owner, const QString& folder, const QString& fileName,
                             QByteArray bytes) {
    Page& page = m_pages[owner];
    page.serial = ++m_lastSerial;
    page.bytes = std::move(bytes);

    QUrl url;
    url.setScheme(QString::fromLatin1(scheme()));
    const QString name = fileName.isEmpty() ? QStringLiteral("untitled.html") : fileName;
    if (folder.isEmpty()) {
        url.setHost(kBlankHost);
        url.setPath(u'/' + name);
    } else {
        url.setHost(kPageHost);
        url.setPath(folder.endsWith(u'/') ? folder + name : folder + u'/' + name);
    }
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
    if (const quint64 serial = serialOf(url)) {
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
    if (url.host() == kPageHost) {
        const QString path = url.path();
        auto* file = new QFile(path, job);
        if (QFileInfo(path).isFile() && file->open(QIODevice::ReadOnly)) {
            job->reply(QMimeDatabase().mimeTypeForFile(path).name().toUtf8(), file);
            return;
        }
    }
    job->fail(QWebEngineUrlRequestJob::UrlNotFound);
}

} // namespace zt
