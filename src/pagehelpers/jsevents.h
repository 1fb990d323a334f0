#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// What the JavaScript Console writes behind an element's tag: one event handler per
// event, each built from the action the user picked and the answers they typed.
namespace zt::jsevents {

// One row of "What should happen?".
struct Action {
    const char* name;
    // The questions asked, in order. An empty or cancelled answer to the first ends
    // the command; a second question may be left empty.
    QStringList prompts;
    // The script run by the handler, from the escaped answers.
    std::function<QString(const QStringList& answers)> script;
    // Every handler but the prompt's ends in one blank, so a handler written after a
    // prompt stands right behind its closing quote.
    bool blankAfter = true;
};

// The actions in the order of the list.
const std::vector<Action>& actions();
// The action of that row text, or null.
const Action* actionNamed(const QString& name);

// An answer made safe to stand in single quotes inside a double-quoted attribute.
// The backslashes are doubled last, so those added before them double too.
QString escaped(QString answer);

// `on{event}="{script}"`, with its blank when the action has one. The answers are
// escaped here.
QString handler(const Action& action, const QString& event, QStringList answers);

} // namespace zt::jsevents
