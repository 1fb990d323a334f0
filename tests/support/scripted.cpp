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

// The front of a picker's queue, or the value that stands for Cancel when nothing
// is queued. Moved out before the pop: GCC 12 warns falsely on copies of
// optional<QString>.
template <class Queue> typename Queue::value_type take(Queue& queue, const char* what) {
    typename Queue::value_type value{};
    if (queue.empty()) {
        ADD_FAILURE() << "nothing queued for the " << what << " picker";
        return value;
    }
    value = std::move(queue.front());
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

} // namespace zt::test
