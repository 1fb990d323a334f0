#pragma once

#include "guard.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <initializer_list>
#include <vector>

namespace zt {

// Design state of a menu row. Submenu makes a row a submenu that the program
// fills itself (the recent files).
enum MenuState : int { Plain = 0, Checked = 1, Disabled = 2, SeparatorBefore = 4, Submenu = 8 };

// Puts or takes the check mark of a menu item.
inline void setMark(QAction* item, bool checked) {
    if (checked)
        item->setCheckable(true);
    item->setChecked(checked);
}

// One row of a form's menu map: where it stands, the ui member that holds it, its
// caption, key and design state, and the form's handler its click runs. A row with
// children (the next rows one level deeper) is a submenu; its handler, if any, runs
// when the submenu opens.
template <class F> struct MenuRow {
    using Member = QAction* F::Ui::*;
    using Handler = void (F::*)();

    int depth;
    Member item;
    const char* name;
    const char* caption;
    const char* key = "";
    int state = Plain;
    Handler handler = nullptr;
};

// Builds the menu bar of form from its map, puts each item into its ui member and
// connects each click through the guard.
template <class F> void buildMenus(F& form, QMenuBar& bar, const std::vector<MenuRow<F>>& rows) {
    std::vector<QMenu*> open; // the submenu at each depth
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const MenuRow<F>& row = rows[i];
        const bool parent =
            (row.state & Submenu) || (i + 1 < rows.size() && rows[i + 1].depth > row.depth);
        open.resize(row.depth);
        QAction* action = nullptr;
        if (parent) {
            QMenu* menu = row.depth == 0 ? bar.addMenu(QString::fromUtf8(row.caption))
                                         : open.back()->addMenu(QString::fromUtf8(row.caption));
            if (row.state & SeparatorBefore && row.depth > 0)
                open.back()->insertSeparator(menu->menuAction());
            menu->setObjectName(QString::fromLatin1(row.name));
            action = menu->menuAction();
            if (row.handler) {
                QObject::connect(menu, &QMenu::aboutToShow, menu,
                                 guarded([&form, h = row.handler] { (form.*h)(); }));
            }
            open.push_back(menu);
        } else {
            QMenu* menu = open.back();
            if (row.state & SeparatorBefore)
                menu->addSeparator();
            action = menu->addAction(QString::fromUtf8(row.caption));
            QObject::connect(action, &QAction::triggered, action,
                             guarded([&form, action, h = row.handler](bool) {
                                 // A check mark is the handler's to set, as on the
                                 // program's menus, and a fixed mark stays: undo Qt's
                                 // own toggle, with or without a handler.
                                 if (action->isCheckable())
                                     action->setChecked(!action->isChecked());
                                 if (h)
                                     (form.*h)();
                             }));
        }
        action->setObjectName(QString::fromLatin1(row.name));
        if (*row.key)
            action->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
        setMark(action, row.state & Checked);
        action->setEnabled(!(row.state & Disabled));
        if (row.item)
            form.ui.*row.item = action;
    }
}

} // namespace zt
