#include "programfolder.h"

#include <QDir>
#include <QRegularExpression>

namespace zt {

ProgramFolder::ProgramFolder(QString root) : m_root(QDir::cleanPath(std::move(root))) {}

QString ProgramFolder::path(const QString& relative) const {
    static const QRegularExpression separators(QStringLiteral(R"([\\/]+)"));
    QString current = m_root;
    const QStringList parts = relative.split(separators, Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        QString chosen = part;
        const QDir dir(current);
        if (!dir.exists(part)) {
            const QStringList entries = dir.entryList(QDir::AllEntries | QDir::Hidden |
                                                      QDir::System | QDir::NoDotAndDotDot);
            for (const QString& entry : entries) {
                if (entry.compare(part, Qt::CaseInsensitive) == 0) {
                    chosen = entry;
                    break;
                }
            }
        }
        current = current + QLatin1Char('/') + chosen;
    }
    return current;
}

} // namespace zt
