#include "filelistbox.h"

#include "guard.h"

#include <QDir>

namespace zt {

FileListBox::FileListBox(const char* name, const QString& pattern, QWidget* parent)
    : QListWidget(parent), m_pattern(pattern) {
    setObjectName(QString::fromLatin1(name));
    connect(this, &QListWidget::itemDoubleClicked, this, guarded([this](QListWidgetItem*) {
                if (onDblClick)
                    onDblClick();
            }));
}

void FileListBox::setPath(const QString& path) {
    m_path = path;
    refresh();
}

void FileListBox::refresh() {
    const QString selected = fileName();
    clear();
    // As on the desktop the program was made for: names matched without regard to
    // case, and a name that starts with a dot (".crw") is a file like any other.
    QDir folder(m_path, m_pattern, QDir::Name | QDir::IgnoreCase, QDir::Files | QDir::Hidden);
    addItems(folder.entryList());
    const auto again = findItems(selected, Qt::MatchExactly);
    if (!selected.isEmpty() && !again.isEmpty())
        setCurrentItem(again.front());
}

QString FileListBox::fileName() const {
    return currentItem() ? currentItem()->text() : QString();
}

} // namespace zt
