#pragma once

#include "eventwatcher.h"
#include "guard.h"

#include <QAction>
#include <QCursor>
#include <QIcon>
#include <QLayout>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <functional>
#include <vector>

namespace zt {

// The picture of a button from the desktop's icon theme; an empty icon when the
// theme has none, and then the button shows its key or text instead.
QIcon themeIcon(const char* name);

// One key of a toolbar whose click dispatches on the key.
template <class F> struct ToolKey {
    const char* key;
    const char* tip;
    const char* icon;
    bool separatorBefore;
    void (F::*handler)();
};

// Compares key with each row in turn and runs the first match; a key that
// matches nothing does nothing.
template <class F>
void dispatchKey(F& form, const std::vector<ToolKey<F>>& keys, const QString& key) {
    for (const ToolKey<F>& row : keys) {
        if (key == QLatin1String(row.key)) {
            (form.*row.handler)();
            return;
        }
    }
}

// Fills bar with one button per key; a click calls click(key) through the guard.
template <class F>
void buildToolbar(QToolBar& bar, const std::vector<ToolKey<F>>& keys,
                  std::function<void(const QString&)> click) {
    bar.setToolButtonStyle(Qt::ToolButtonIconOnly);
    for (const ToolKey<F>& row : keys) {
        if (row.separatorBefore)
            bar.addSeparator();
        const QString key = QString::fromLatin1(row.key);
        QAction* button = bar.addAction(themeIcon(row.icon), key);
        button->setObjectName(key);
        button->setToolTip(QString::fromLatin1(row.tip));
        QObject::connect(button, &QAction::triggered, button,
                         guarded([click, key](bool) { click(key); }));
    }
}

// One plain button of a format bar: it runs a handler, or pops up one of the
// form's menus at the pointer. Moving the pointer over it may put a text into the
// form's status line.
template <class F> struct FormatButton {
    QToolButton* F::Ui::*button;
    const char* name;
    const char* tip;
    const char* status;
    const char* icon;
    const char* text; // shown when the theme has no picture
    void (F::*handler)() = nullptr;
    QAction* F::Ui::*popup = nullptr;
};

template <class F>
void buildFormatBar(F& form, QWidget& bar, const std::vector<FormatButton<F>>& buttons,
                    std::function<void(const QString&)> showStatus) {
    for (const FormatButton<F>& row : buttons) {
        auto* button = new QToolButton(&bar);
        button->setObjectName(QString::fromLatin1(row.name));
        button->setAutoRaise(true);
        const QIcon icon = themeIcon(row.icon);
        if (icon.isNull())
            button->setText(QString::fromUtf8(row.text));
        else
            button->setIcon(icon);
        button->setToolTip(QString::fromUtf8(row.tip));
        if (row.handler) {
            QObject::connect(button, &QToolButton::clicked, button,
                             guarded([&form, h = row.handler](bool) { (form.*h)(); }));
        } else if (row.popup) {
            QObject::connect(button, &QToolButton::clicked, button,
                             guarded([&form, p = row.popup](bool) {
                                 (form.ui.*p)->menu()->popup(QCursor::pos());
                             }));
        }
        if (*row.status) {
            const QString status = QString::fromUtf8(row.status);
            new EventWatcher(button, QEvent::MouseMove,
                             [showStatus, status] { showStatus(status); });
        }
        if (bar.layout())
            bar.layout()->addWidget(button);
        form.ui.*row.button = button;
    }
}

} // namespace zt
