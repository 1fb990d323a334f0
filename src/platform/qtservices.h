#pragma once

#include "desktop.h"
#include "prompts.h"

class QWidget;

namespace zt {

// The real desktop services, on Qt. main() is the only place that makes them.

class QtPrompts : public Prompts {
public:
    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
};

class QtPickers : public Pickers {
public:
    std::optional<QString> openFile(const FileDialogRequest& request) override;
    std::optional<QString> saveFile(const FileDialogRequest& request) override;
    std::optional<quint32> color(quint32 initial) override;
    bool printer() override;
};

class QtClipboard : public Clipboard {
public:
    QString text() const override;
    void setText(const QString& text) override;
    QString html() const override;
    void setHtml(const QString& html, const QString& plainText) override;
    void clear() override;
};

class QtLauncher : public Launcher {
public:
    bool start(const QString& program, const QStringList& arguments) override;
    bool open(const QString& target) override;
};

class QtDesktop : public Desktop {
public:
    QStringList screenFonts() const override;
    void beep() override;
};

// The program's message box, with the run time's style and answer numbers. It comes
// in front of every window of the program, top-most ones included, and a Yes/No
// question without Cancel stays up until Yes or No is clicked.
int showMessageBox(const QString& text, int style, const QString& title);

// "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm" as Qt's name filters.
QStringList qtNameFilters(const QString& filter);

} // namespace zt
