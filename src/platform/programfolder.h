#pragma once

#include <QString>

namespace zt {

// The folder the program runs from, with the run-time folders beside it. The
// program spells one folder several ways ("Crash" and "crash", "HTMLTutor" and
// "htmltutor"), so each part of a relative path is matched without regard to case
// against what exists; a part that matches nothing is kept as written.
class ProgramFolder {
public:
    explicit ProgramFolder(QString root);

    const QString& root() const { return m_root; }

    // The full path of relative, which may use \ or / between its parts.
    QString path(const QString& relative) const;

private:
    QString m_root;
};

} // namespace zt
