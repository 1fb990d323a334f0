#pragma once

#include "platform/geometry.h"
#include "platform/guard.h"
#include "platform/menutable.h"
#include "platform/statusbar.h"
#include "platform/toolbartable.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>

#include <vector>

namespace zt {

// What the two views share around their editors: the menus with the five recent
// entries, Toolbar1, the format bar and the status bar. Returns the central widget,
// where the view puts its editor below the format bar.
template <class F>
QWidget* buildViewFrame(F& form, QMainWindow& window, const std::vector<MenuRow<F>>& menus,
                        const std::vector<ToolKey<F>>& keys,
                        const std::vector<FormatButton<F>>& buttons, int formatBarHeight) {
    buildMenus(form, *window.menuBar(), menus);
    for (int i = 0; i < int(form.ui.recent.size()); ++i) {
        QAction* item = form.ui.mnuRecent->menu()->addAction(QString());
        item->setObjectName(QStringLiteral("recent(%1)").arg(i));
        QObject::connect(item, &QAction::triggered, item,
                         guarded([&form, i](bool) { form.recent_Click(i); }));
        form.ui.recent[std::size_t(i)] = item;
    }

    form.ui.Toolbar1 = window.addToolBar(QStringLiteral("Toolbar1"));
    form.ui.Toolbar1->setObjectName(QStringLiteral("Toolbar1"));
    form.ui.Toolbar1->setMovable(false);
    buildToolbar(*form.ui.Toolbar1, keys,
                 [&form](const QString& key) { form.Toolbar1_ButtonClick(key); });

    form.ui.StatusBar1 = new StatusBar({0, 120, 90, 50, 50, 40}, &window);
    window.setStatusBar(form.ui.StatusBar1);
    form.ui.StatusBar1->showKeyStates(4, 5, 6);

    auto* central = new QWidget;
    window.setCentralWidget(central);
    form.ui.frmformatbar = new QWidget(central);
    form.ui.frmformatbar->setObjectName(QStringLiteral("frmformatbar"));
    auto* row = new QHBoxLayout(form.ui.frmformatbar);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(1);
    buildFormatBar(form, *form.ui.frmformatbar, buttons,
                   [&form](const QString& text) { form.ui.StatusBar1->setPanelText(1, text); });
    row->addStretch(1);
    form.ui.frmformatbar->setGeometry(0, 0, twips(12000), formatBarHeight);
    return central;
}

} // namespace zt
