#include "form.h"

#include "formregistry.h"
#include "guard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace zt {

namespace {

// Turns the close of a window by its frame into the form's unload, through the
// guard; the window itself never closes on its own.
class FrameCloseFilter : public QObject {
public:
    FrameCloseFilter(Form& form, QObject* parent) : QObject(parent), m_form(form) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Close && watched == m_form.window()) {
            event->ignore();
            Guard::run([this] { m_form.unload(); });
            return true;
        }
        return false;
    }

private:
    Form& m_form;
};

// The window a new window was opened from.
const QWidget* openerOf(const QWidget* window) {
    const QWidget* active = QApplication::activeWindow();
    if (active && active != window && active->isVisible())
        return active;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
        if (top != window && top->isVisible() && top->windowType() == Qt::Window)
            return top;
    }
    return nullptr;
}

} // namespace

Form::Form(FormRegistry& forms) : m_forms(forms) {}

Form::~Form() = default;

Services& Form::services() const {
    return m_forms.services();
}

void Form::setWindow(QWidget* window) {
    m_window.reset(window);
    window->installEventFilter(new FrameCloseFilter(*this, window));
}

void Form::show() {
    if (!m_window)
        return;
    if (!m_placed && m_window->windowType() == Qt::Dialog)
        placeOver(openerOf(m_window.get()));
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void Form::placeOver(const QWidget* over) {
    if (!m_window)
        return;
    m_placed = true;
    QRect area;
    if (over)
        area = over->frameGeometry();
    else if (const QScreen* screen = QGuiApplication::primaryScreen())
        area = screen->availableGeometry();
    else
        return;
    // The window is measured with the size it shows at: the one its controls need
    // unless it was given one of its own.
    if (QLayout* layout = m_window->layout())
        layout->activate();
    if (!m_window->testAttribute(Qt::WA_Resized))
        m_window->adjustSize();
    QRect place(QPoint(), m_window->frameGeometry().size());
    place.moveCenter(area.center());
    m_window->move(place.topLeft());
}

void Form::hide() {
    if (m_window)
        m_window->hide();
}

bool Form::isVisible() const {
    return m_window && m_window->isVisible();
}

QString Form::caption() const {
    return m_window ? m_window->windowTitle() : QString();
}

void Form::setCaption(const QString& caption) {
    if (m_window)
        m_window->setWindowTitle(caption);
}

bool Form::unload() {
    return m_forms.unload(*this);
}

} // namespace zt
