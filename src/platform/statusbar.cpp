#include "statusbar.h"

#include "runtimefailure.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

namespace zt {

StatusBar::StatusBar(const std::vector<int>& widths, QWidget* parent) : QStatusBar(parent) {
    setSizeGripEnabled(true);
    for (const int width : widths) {
        auto* label = new QLabel(this);
        label->setFrameShape(QFrame::StyledPanel);
        label->setFrameShadow(QFrame::Sunken);
        label->setContentsMargins(4, 0, 4, 0);
        if (width > 0) {
            label->setMinimumWidth(width);
            addPermanentWidget(label);
        } else {
            addWidget(label, 1);
        }
        m_panels.push_back(label);
    }
}

QLabel* StatusBar::panel(int panel) const {
    if (panel < 1 || panel > int(m_panels.size()))
        throw RuntimeFailure(35600, QStringLiteral("Index out of bounds"));
    return m_panels[std::size_t(panel - 1)];
}

QString StatusBar::panelText(int panel) const {
    return this->panel(panel)->text();
}

void StatusBar::setPanelText(int panel, const QString& text) {
    this->panel(panel)->setText(text);
}

} // namespace zt

namespace zt {

namespace {

// The X11 modifier bits that carry the lock states in a key event's native state.
constexpr quint32 kLockMask = 0x02;
constexpr quint32 kNumLockMask = 0x10;

} // namespace

void StatusBar::showKeyStates(int capsPanel, int numPanel, int insertPanel) {
    m_caps = capsPanel;
    m_num = numPanel;
    m_insert = insertPanel;
    setPanelText(capsPanel, QStringLiteral("CAPS"));
    setPanelText(numPanel, QStringLiteral("NUM"));
    setPanelText(insertPanel, QStringLiteral("INS"));
    panel(capsPanel)->setEnabled(false);
    panel(numPanel)->setEnabled(false);
    qApp->installEventFilter(this);
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) &&
        watched->isWidgetType() && static_cast<QWidget*>(watched)->window() == window()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const quint32 state = key->nativeModifiers();
        if (key->nativeScanCode() != 0) {
            panel(m_caps)->setEnabled(state & kLockMask);
            panel(m_num)->setEnabled(state & kNumLockMask);
        }
        if (event->type() == QEvent::KeyPress && key->key() == Qt::Key_Insert) {
            m_overwrite = !m_overwrite;
            setPanelText(m_insert, m_overwrite ? QStringLiteral("OVR") : QStringLiteral("INS"));
        }
    }
    return QStatusBar::eventFilter(watched, event);
}

} // namespace zt
