#include "testprogram.h"

#include "platform/engine/memoryengine.h"
#include "platform/guard.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace zt::test {

namespace {

void copyTree(const QString& from, const QString& to) {
    QDir().mkpath(to);
    const QDir source(from);
    for (const QFileInfo& entry : source.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir())
            copyTree(entry.filePath(), target);
        else
            QFile::copy(entry.filePath(), target);
    }
}

} // namespace

TestProgram::TestProgram() : folder(dir.path() + QStringLiteral("/program")) {
    const QString resources = qEnvironmentVariable("ZT_RESOURCES");
    for (const QString name : {"misc", "tools", "templates", "crash", "HTMLTutor"}) {
        QDir().mkpath(folder.root() + '/' + name);
        if (!resources.isEmpty()) // a folder missing beside the program copies nothing
            copyTree(resources + '/' + name, folder.root() + '/' + name);
    }
    QDir().mkpath(dir.path() + QStringLiteral("/scratch"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       dir.path() + QStringLiteral("/config"));

    services.prompts = &prompts;
    services.pickers = &pickers;
    services.clipboard = &clipboard;
    services.launcher = &launcher;
    services.desktop = &desktop;
    services.settings = &settings;
    services.folder = &folder;
    services.makeEngine = [this](QWidget*) { return std::make_unique<MemoryEngine>(clipboard); };
    forms = std::make_unique<FormRegistry>(services);

    Guard::setEnding([this](const RuntimeFailure& failure) { failures.push_back(failure); });
    Guard::setProcessEnd([this] { ++processEnds; });
}

TestProgram::~TestProgram() {
    forms.reset();
    Guard::restoreDefaults();
}

bool TestProgram::event(const std::function<void()>& body) {
    return Guard::run(body);
}

QString TestProgram::scratch(const QString& name) const {
    return dir.path() + QStringLiteral("/scratch/") + name;
}

QString readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(file.readAll());
}

void writeFile(const QString& path, const QString& text) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(text.toLatin1());
}

} // namespace zt::test
