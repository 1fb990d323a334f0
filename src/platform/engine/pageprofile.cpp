#include "pageprofile.h"

#include "documentserver.h"

#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace zt {

std::shared_ptr<PageProfile> PageProfile::shared() {
    static std::weak_ptr<PageProfile> current;
    std::shared_ptr<PageProfile> profile = current.lock();
    if (!profile) {
        profile.reset(new PageProfile);
        current = profile;
    }
    return profile;
}

PageProfile::PageProfile() : m_server(std::make_unique<DocumentServer>()) {
    m_profile = new QWebEngineProfile; // no storage name: off the record
    m_profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    m_profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    m_profile->setSpellCheckEnabled(false);
    m_profile->installUrlSchemeHandler(DocumentServer::scheme(), m_server.get());

    QWebEngineSettings* settings = m_profile->settings();
    const std::pair<QWebEngineSettings::WebAttribute, bool> attributes[] = {
        {QWebEngineSettings::JavascriptEnabled, false},
        {QWebEngineSettings::JavascriptCanOpenWindows, false},
        {QWebEngineSettings::JavascriptCanAccessClipboard, false},
        {QWebEngineSettings::JavascriptCanPaste, false},
        {QWebEngineSettings::PluginsEnabled, false},
        {QWebEngineSettings::PdfViewerEnabled, false},
        {QWebEngineSettings::LocalContentCanAccessRemoteUrls, false},
        {QWebEngineSettings::LocalContentCanAccessFileUrls, false},
        {QWebEngineSettings::LocalStorageEnabled, false},
        {QWebEngineSettings::HyperlinkAuditingEnabled, false},
        {QWebEngineSettings::ErrorPageEnabled, false},
        {QWebEngineSettings::AutoLoadIconsForPage, false},
        {QWebEngineSettings::TouchIconsEnabled, false},
        {QWebEngineSettings::DnsPrefetchEnabled, false},
        {QWebEngineSettings::NavigateOnDropEnabled, false},
        {QWebEngineSettings::FullScreenSupportEnabled, false},
        {QWebEngineSettings::ScreenCaptureEnabled, false},
        {QWebEngineSettings::AllowRunningInsecureContent, false},
        {QWebEngineSettings::AllowGeolocationOnInsecureOrigins, false},
        {QWebEngineSettings::AllowWindowActivationFromJavaScript, false},
        {QWebEngineSettings::FocusOnNavigationEnabled, false},
    };
    for (const auto& [attribute, on] : attributes)
        settings->setAttribute(attribute, on);
    settings->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

PageProfile::~PageProfile() {
    delete m_profile;
}

} // namespace zt
