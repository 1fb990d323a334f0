#pragma once

#include "pageengine.h"

#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <chrono>
#include <memory>

class QWebEnginePage;
class QWebEngineView;

namespace zt {

class Clipboard;
class PageProfile;
class PendingAnswer;
class RequestPolicy;
class StripDrag;

// The visual engine: a Qt WebEngine view with the document in design mode.
//
// An editing surface shows a shell page that our URL scheme serves from the
// document's folder; a document is parsed apart and its nodes take the place of
// the shell's, so the page's scripts never run and a page of any size loads
// quickly. In browse mode the document is served and navigated to like any page,
// and its scripts run. Reads and commands wait for the engine's answer inside the
// call (see PendingAnswer) and fail with 5, Invalid procedure call, when the
// engine refuses, cannot apply a command, or does not answer in time.
//
// The document reads back in the one format of scripts/serialize.js.
class WebPageEngine : public QObject, public PageEngine {
    Q_OBJECT
public:
    WebPageEngine(Clipboard& clipboard, QWidget* parent = nullptr);
    ~WebPageEngine() override;

    // Must run once before the QApplication is made: registers our URL scheme and
    // shares OpenGL contexts, as Qt WebEngine needs.
    static void registerSchemes();

    QString documentHTML() override;
    QString documentHTMLWithin(std::chrono::milliseconds deadline) override;
    void setDocumentHTML(const QString& html) override;
    void execCommand(DhtmlCommand id) override;

    void loadDocument(const QString& path) override;
    void saveDocument(const QString& path) override;
    void newDocument() override;
    void loadURL(const QString& url) override;

    bool browseMode() const override { return m_browseMode; }
    void setBrowseMode(bool on) override;
    bool showDetails() const override { return m_showDetails; }
    void setShowDetails(bool on) override;
    bool snapToGrid() const override { return m_snapToGrid; }
    void setSnapToGrid(bool on) override;
    void setDesignSurface(bool on) override;
    bool designSurface() const override { return m_designSurface; }
    // What is carried is the whole of the strip's body. The strip's left-button
    // presses no longer reach its page: they pick its content up. A strip that is
    // not a WebPageEngine is passed over.
    void acceptDropsFrom(PageEngine& strip) override;

    void setFocus() override;
    bool isVisible() const override;
    void setVisible(bool visible) override;
    QWidget* widget() override;

    // Selects the first occurrence of text in the page's text (within one run of
    // text); false when there is none.
    bool selectText(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWebEnginePage* page() const;
    QVariant await(const PendingAnswer& answer, std::chrono::milliseconds deadline);
    QVariant runScript(const char* function, const QJsonObject& args);
    QVariant runScriptNow(const char* function, const QJsonObject& args,
                          std::chrono::milliseconds deadline);
    QVariantMap edit(const QString& command, QJsonObject args = {});
    void settle();
    // Each navigation has a number; 0 from startNavigation means that an event
    // during its first wait started a later one.
    quint64 startNavigation(const QUrl& url, quint64 serial);
    bool awaitDocument(quint64 navigation);
    bool navigate(const QUrl& url);
    void showPage(const QString& html);
    QUrl publish(const QString& html);
    bool loadShell();
    QString serialize(bool withMarker, std::chrono::milliseconds deadline);
    void copyToClipboard(const QVariantMap& answer);
    void showContextMenu(const QPoint& at);
    void runDialog(DhtmlCommand id);
    void requireEditable() const;
    void tellSurface();
    bool showsOwnPage() const;
    void scheduleDisplayChanged();
    void watchInput();
    void dropOnTarget(const QPoint& global);

    Clipboard& m_clipboard;
    std::shared_ptr<PageProfile> m_profile;
    std::shared_ptr<bool> m_alive;
    QPointer<QWebEngineView> m_view;
    QPointer<QWebEnginePage> m_page;
    RequestPolicy* m_policy = nullptr;
    QPointer<QWidget> m_inputWidget;

    // Where the document's file lives, for its relative links; empty for none.
    QString m_folder;
    QString m_fileName;
    QUrl m_shellUrl;
    QString m_shellDoctype;
    quint64 m_ownSerial = 0;
    // The address the program last asked the surface to go to.
    QUrl m_expectedPage;
    // The generator tags as the document's text spelled them.
    QStringList m_givenGenerators;
    // The text a page in browse mode was made from, shown again on leaving it.
    QString m_browseSource;

    bool m_browseMode = false;
    bool m_showDetails = false;
    bool m_snapToGrid = false;
    bool m_designSurface = false;
    // For a strip: the page its content is dropped on, and the drag that carries it.
    QPointer<WebPageEngine> m_dropTarget;
    std::unique_ptr<StripDrag> m_stripDrag;
    // A navigation under way, and the serial of our page it goes to (0 for a page
    // asked for by address).
    bool m_navigating = false;
    quint64 m_navigationSerial = 0;
    quint64 m_navigationCount = 0;
    bool m_displayChangePending = false;
};

} // namespace zt
