#include "jsevents.h"

namespace zt::jsevents {

namespace {

QString quoted(const QString& text) {
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

const std::vector<Action>& actions() {
    static const std::vector<Action> rows{
        {"alert",
         {QStringLiteral("Enter the message that you would like to display")},
         [](const QStringList& a) { return "alert(" + quoted(a[0]) + ")"; }},
        {"close window", {}, [](const QStringList&) { return QStringLiteral("window.close()"); }},
        {"confirm",
         {QStringLiteral("Enter the confirmation message")},
         [](const QStringList& a) { return "confirm(" + quoted(a[0]) + ")"; }},
        {"open url",
         {QStringLiteral("Enter the URL to which you want to navigate")},
         [](const QStringList& a) { return "window.location=" + quoted(a[0]); }},
        {"prompt",
         {QStringLiteral("Enter the prompt message"),
          QStringLiteral("Enter the default text (Optional)")},
         [](const QStringList& a) {
             const QString withDefault = a[1].isEmpty() ? QString() : "," + quoted(a[1]);
             return "prompt(" + quoted(a[0]) + withDefault + ")";
         },
         false},
    };
    return rows;
}

const Action* actionNamed(const QString& name) {
    for (const Action& action : actions())
        if (name == QLatin1String(action.name))
            return &action;
    return nullptr;
}

QString escaped(QString answer) {
    answer.replace(QLatin1Char('"'), QLatin1String("\\\""));
    answer.replace(QLatin1Char('\''), QLatin1String("\\'"));
    answer.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    return answer;
}

QString handler(const Action& action, const QString& event, QStringList answers) {
    for (QString& answer : answers)
        answer = escaped(answer);
    while (answers.size() < action.prompts.size())
        answers << QString();
    return "on" + event + "=\"" + action.script(answers) + "\"" +
           (action.blankAfter ? QStringLiteral(" ") : QString());
}

} // namespace zt::jsevents
