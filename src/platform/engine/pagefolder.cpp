#include "pagefolder.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace zt::pagefolder {

namespace {

constexpr int kLevelsAbove = 2;

bool isInside(const QString& path, const QString& folder) {
    return path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

} // namespace

QString rootFor(const QString& folder) {
    if (folder.isEmpty())
        return {};
    QString root = QFileInfo(folder).canonicalFilePath();
    if (root.isEmpty())
        return {};
    const QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
    for (int level = 0; level < kLevelsAbove; ++level) {
        const QString parent = QFileInfo(root).path();
        // The home folder holds the user's keys and settings; the file system's
        // root holds everything.
        if (parent == root || parent == QLatin1String("/") || parent == home ||
            isInside(home, parent))
            break;
        root = parent;
    }
    return root == QLatin1String("/") ? QString() : root;
}

QString showableFile(const QString& root, const QString& path) {
    if (root.isEmpty() || path.isEmpty())
        return {};
    const QString file = QFileInfo(path).canonicalFilePath();
    if (!isInside(file, root))
        return {};
    for (const QString& name : file.mid(root.size()).split(u'/', Qt::SkipEmptyParts))
        if (name.startsWith(u'.'))
            return {};
    // Only a regular file: reading a pipe or a device could wait for ever.
    struct stat status {};
    const QByteArray native = QFile::encodeName(file);
    if (::stat(native.constData(), &status) != 0 || !S_ISREG(status.st_mode) ||
        ::access(native.constData(), R_OK) != 0)
        return {};
    return file;
}

} // namespace zt::pagefolder
