#include "finalsave.h"

#include "shell/tessara.h"
#include "shell/zelvo.h"

#include "platform/engine/pageengine.h"
#include "platform/formregistry.h"
#include "platform/programfolder.h"
#include "platform/services.h"
#include "platform/textfiles.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>

namespace zt::finalsave {

namespace {

using namespace std::chrono_literals;

// An engine that has not answered by then is not going to: the desktop waits only
// a few seconds before it ends a program for good.
constexpr std::chrono::milliseconds kEngineDeadline = 2s;

} // namespace

bool unsavedWork(FormRegistry& forms) {
    return forms.isLoaded<Zelvo>() && !forms.get<Zelvo>().ui.star.text().isEmpty();
}

QString writeOpenDocument(FormRegistry& forms, const QDateTime& when) {
    Zelvo* zelvo = forms.isLoaded<Zelvo>() ? &forms.get<Zelvo>() : nullptr;
    Tessara* tessara = forms.isLoaded<Tessara>() ? &forms.get<Tessara>() : nullptr;
    if (!zelvo && !tessara)
        return {};
    const QString folder = forms.services().folder->path(QStringLiteral("crash"));
    if (!QFileInfo(folder).isDir())
        return {};

    QString text;
    bool fromEngine = false;
    if (tessara && tessara->isVisible() && tessara->ui.txtComp) {
        try {
            text = tessara->ui.txtComp->documentHTMLWithin(kEngineDeadline);
            fromEngine = true;
        } catch (...) {
        }
    }
    if (!fromEngine)
        text = zelvo ? zelvo->ui.area.text() + QStringLiteral("\r\n") : QString();

    const QString tag = zelvo ? zelvo->Tag : QString();
    const QString name =
        tag.isEmpty() ? QStringLiteral("Untitled") : QFileInfo(tag).completeBaseName();
    // Dashes where a clock has colons: a file name on every system can hold them.
    const QString path =
        QDir(folder).filePath(QStringLiteral("%1 %2.crw")
                                  .arg(name, when.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss"))));
    try {
        textfiles::write(path, text, zelvo ? zelvo->encoding : textfiles::Encoding{});
    } catch (...) {
        return {};
    }
    return path;
}

} // namespace zt::finalsave
