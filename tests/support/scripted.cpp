#include "scripted.h"

#include <gtest/gtest.h>

namespace zt::test {

int ScriptedPrompts::msgBox(const QString& text, int style, const QString& title) {
    asked.push_back({Question::MsgBox, text, title, style, {}});
    if (!answers.empty()) {
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    if ((style & 0x7) == vbOKOnly)
        return vbOK;
    ADD_FAILURE() << "unexpected question: " << text.toStdString();
    return (style & vbDefaultButton2) ? vbNo : vbYes;
}

QString ScriptedPrompts::inputBox(const QString& prompt, const QString& title,
                                  const QString& defaultText) {
    asked.push_back({Question::InputBox, prompt, title, 0, defaultText});
    if (inputs.empty()) {
        ADD_FAILURE() << "unexpected input box: " << prompt.toStdString();
        return {};
    }
    const QString answer = inputs.front();
    inputs.pop_front();
    return answer;
}

namespace {

bool nothingQueued(bool empty, const char* what) {
    if (empty)
        ADD_FAILURE() << "nothing queued for the " << what << " picker";
    return empty;
}

// Unwrapped before the copy: GCC 12 warns falsely on copies of optional<QString>.
template <class T> std::optional<T> take(std::deque<std::optional<T>>& queue, const char* what) {
    if (nothingQueued(queue.empty(), what))
        return std::nullopt;
    const bool cancel = !queue.front().has_value();
    const T value = cancel ? T{} : *queue.front();
    queue.pop_front();
    if (cancel)
        return std::nullopt;
    return value;
}

bool take(std::deque<bool>& queue, const char* what) {
    if (nothingQueued(queue.empty(), what))
        return false;
    const bool value = queue.front();
    queue.pop_front();
    return value;
}

} // namespace

std::optional<QString> ScriptedPickers::openFile(const FileDialogRequest& request) {
    asked.push_back({PickerRequest::Open, request});
    return take(files, "open");
}

std::optional<QString> ScriptedPickers::saveFile(const FileDialogRequest& request) {
    asked.push_back({PickerRequest::Save, request});
    return take(files, "save");
}

std::optional<quint32> ScriptedPickers::color(quint32) {
    asked.push_back({PickerRequest::Color, {}});
    return take(colors, "colour");
}

bool ScriptedPickers::printer() {
    asked.push_back({PickerRequest::Printer, {}});
    return take(printers, "printer");
}

void MemoryClipboard::setText(const QString& text) {
    m_text = text;
    m_html.clear();
}

void MemoryClipboard::setHtml(const QString& html, const QString& plainText) {
    m_html = html;
    m_text = plainText;
}

void MemoryClipboard::clear() {
    m_text.clear();
    m_html.clear();
}

bool RecordingLauncher::start(const QString& program, const QStringList& arguments) {
    started.push_back({program, arguments});
    return true;
}

bool RecordingLauncher::open(const QString& target) {
    opened << target;
    return true;
}

} // namespace zt::test
