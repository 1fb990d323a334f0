#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QMimeData;

namespace zt {

// What a file dialog is asked to show.
struct FileDialogRequest {
    QString fileName;   // the name shown at first
    QString filter;     // "Text (*.x)|*.x|Other (*.y)|*.y"
    QString defaultExt; // added to a typed name without an extension
    QString title;
};

// The desktop's own pickers. Each answers nothing (std::nullopt) for Cancel.
class Pickers {
public:
    virtual ~Pickers() = default;
    virtual std::optional<QString> openFile(const FileDialogRequest& request) = 0;
    virtual std::optional<QString> saveFile(const FileDialogRequest& request) = 0;
    // Colours as the run time holds them: 0x00BBGGRR.
    virtual std::optional<quint32> color(quint32 initial) = 0;
    virtual bool printer() = 0;
};

// The system clipboard, with HTML for the visual engine.
class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual QString text() const = 0;
    virtual void setText(const QString& text) = 0;
    virtual QString html() const = 0;
    // HTML together with its plain text, as a copy from a page puts it there.
    virtual void setHtml(const QString& html, const QString& plainText) = 0;
    virtual void clear() = 0;
};

// Starting outside programs and opening documents in the desktop's viewer.
class Launcher {
public:
    virtual ~Launcher() = default;
    // Starts program with arguments; false when it could not be started.
    virtual bool start(const QString& program, const QStringList& arguments) = 0;
    // Opens a file or URL with the desktop's default application.
    virtual bool open(const QString& target) = 0;
};

// The screen's font list and the system beep.
class Desktop {
public:
    virtual ~Desktop() = default;
    virtual QStringList screenFonts() const = 0;
    virtual void beep() = 0;
};

} // namespace zt
