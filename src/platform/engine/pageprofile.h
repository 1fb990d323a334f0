#pragma once

#include <memory>

class QWebEngineProfile;

namespace zt {

class DocumentServer;

// The one browser profile that all page engines share: off the record, with our
// URL scheme, and closed by default (no scripts, no clipboard access for pages, no
// plugins, no remote access from local pages, no file access from file pages, no
// navigation by dropping a file). Pages keep what they store in memory only.
// It lives while some engine holds it; each engine lets its page go first, as a
// profile must outlive its pages.
class PageProfile {
public:
    static std::shared_ptr<PageProfile> shared();
    ~PageProfile();

    PageProfile(const PageProfile&) = delete;
    PageProfile& operator=(const PageProfile&) = delete;

    QWebEngineProfile* profile() const { return m_profile; }
    DocumentServer& server() const { return *m_server; }

private:
    PageProfile();

    std::unique_ptr<DocumentServer> m_server;
    QWebEngineProfile* m_profile;
};

} // namespace zt
