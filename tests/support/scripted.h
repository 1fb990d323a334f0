#pragma once

#include "platform/desktop.h"
#include "platform/prompts.h"

#include <deque>
#include <optional>
#include <vector>

namespace zt::test {

// One question the program asked through a box.
struct Question {
    enum Kind { MsgBox, InputBox } kind;
    QString text;
    QString title;
    int style = 0;
    QString defaultText;
};

// Boxes that answer from a queue and keep every question. A box with only an OK
// button needs no answer; any other box with nothing queued fails the test.
class ScriptedPrompts : public Prompts {
public:
    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;

    std::deque<int> answers;
    std::deque<QString> inputs;
    std::vector<Question> asked;
};

// What a file or colour picker was asked.
struct PickerRequest {
    enum Kind { Open, Save, Color, Printer } kind;
    FileDialogRequest file;
};

// Pickers that answer from queues; std::nullopt is Cancel.
class ScriptedPickers : public Pickers {
public:
    std::optional<QString> openFile(const FileDialogRequest& request) override;
    std::optional<QString> saveFile(const FileDialogRequest& request) override;
    std::optional<quint32> color(quint32 initial) override;
    bool printer() override;

    std::deque<std::optional<QString>> files;
    std::deque<std::optional<quint32>> colors;
    std::deque<bool> printers;
    std::vector<PickerRequest> asked;
};

class MemoryClipboard : public Clipboard {
public:
    QString text() const override { return m_text; }
    void setText(const QString& text) override { setHtml({}, text); }
    QString html() const override { return m_html; }
    void setHtml(const QString& html, const QString& plainText) override {
        m_html = html;
        m_text = plainText;
    }
    void clear() override { setHtml({}, {}); }

private:
    QString m_text;
    QString m_html;
};

struct Launch {
    QString program;
    QStringList arguments;
};

class RecordingLauncher : public Launcher {
public:
    bool start(const QString& program, const QStringList& arguments) override {
        started.push_back({program, arguments});
        return true;
    }
    bool open(const QString& target) override {
        opened << target;
        return true;
    }

    std::vector<Launch> started;
    QStringList opened;
};

class FixedDesktop : public Desktop {
public:
    QStringList screenFonts() const override { return fonts; }
    void beep() override { ++beeps; }

    QStringList fonts{QStringLiteral("Arial"), QStringLiteral("Courier New"),
                      QStringLiteral("Times New Roman")};
    int beeps = 0;
};

} // namespace zt::test
