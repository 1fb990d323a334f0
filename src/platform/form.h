#pragma once

#include <QString>

#include <memory>

class QWidget;

namespace zt {

class FormRegistry;
struct Services;

// One window of the program: a single instance that comes to exist at first touch
// through the registry, loaded hidden, and is forgotten whole when unloaded. A
// subclass builds its window and its controls (kept in its `ui` member) in its
// constructor, and does what its load step does in load().
class Form {
public:
    explicit Form(FormRegistry& forms);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    FormRegistry& forms() const { return m_forms; }
    Services& services() const;

    QWidget* window() const { return m_window.get(); }
    // Shows the window in front. The first time, a dialog the program has not placed
    // opens in the middle of the window it was opened from: the active window, else
    // a main window that is shown, else the screen.
    void show();
    // Puts the window in the middle of over's frame, or of the screen without one.
    void placeOver(const QWidget* over);
    void hide();
    bool isVisible() const;
    QString caption() const;
    void setCaption(const QString& caption);

    // Unloads this form (and destroys it once the current event is over).
    // Returns false when the form's unload step cancelled it.
    bool unload();

    // The form's load step: runs once, hidden, at the first touch.
    virtual void load() {}
    // The form's unload step. Setting cancel keeps the form loaded.
    virtual void formUnload(bool& cancel) { (void)cancel; }

protected:
    // The form's top-level window; the form owns it. Closing it by its frame runs
    // the unload through the guard.
    void setWindow(QWidget* window);

private:
    FormRegistry& m_forms;
    std::unique_ptr<QWidget> m_window;
    bool m_placed = false;
};

} // namespace zt
