#pragma once

#include <QListWidget>

namespace zt {

// The files of one folder that match a pattern, by name, one a row. Path and
// Pattern as the program sets them; the list is read again on Refresh and on each
// new path. A folder that cannot be read lists nothing.
class FileListBox : public QListWidget {
public:
    FileListBox(const char* name, const QString& pattern, QWidget* parent = nullptr);

    QString path() const { return m_path; }
    void setPath(const QString& path);
    void refresh();
    // The bare name of the file the list is on, or empty before one is chosen.
    QString fileName() const;
    // Runs on a double click of a file, as a separate event of the control.
    std::function<void()> onDblClick;

private:
    QString m_path;
    QString m_pattern;
};

} // namespace zt
