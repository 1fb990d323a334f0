#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QJsonObject>
#include <QPointer>
#include <QVariantMap>

#include <exception>
#include <functional>
#include <utility>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace zt {

// One of the engine's script commands run in the page, with its answer; a command
// that does not apply throws.
using PageCall = std::function<QVariantMap(const QString& command, const QJsonObject& args)>;

// The frame of the engine's own dialogs: labelled fields, a line where the dialog
// says what is wrong, and a row of buttons. Controls carry object names, so they
// can be found by them.
class PageDialog : public QDialog {
public:
    PageDialog(QWidget* parent, const QString& title, const char* name);

    // Shows the dialog modal over its view. False when the user cancelled; throws
    // the failure a page call inside met, and when the view went away meanwhile.
    bool execute();

protected:
    QFormLayout* form() const { return m_form; }
    QDialogButtonBox* buttons() const { return m_buttons; }
    // A one-line field, named; addField also puts it on a row of its own.
    QLineEdit* newField(const char* name, const QString& text);
    QLineEdit* addField(const char* name, const QString& label, const QString& text = {});
    // A row of a field and a button beside it that helps to fill it.
    QPushButton* addHelper(QWidget* field, const QString& label, const char* name,
                           const QString& caption);
    QPushButton* addButton(const char* name, const QString& caption,
                           QDialogButtonBox::ButtonRole role);
    // OK and Cancel; OK accepts only when check finds nothing to say.
    void addOkCancel(std::function<QString()> check);
    void say(const QString& message);
    // Runs work inside the dialog: a failure closes it and comes out of execute().
    void attempt(const std::function<void()>& work);

private:
    QFormLayout* m_form;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
    std::exception_ptr m_failure;
};

// A dialog parented to the view for the length of one command. Should the view
// go while the dialog is up, it takes the dialog along.
template <class Dialog> class Owned {
public:
    template <class... Args>
    explicit Owned(Args&&... args) : m_dialog(new Dialog(std::forward<Args>(args)...)) {}
    ~Owned() { delete m_dialog.data(); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    Dialog* operator->() const { return m_dialog.data(); }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace zt
