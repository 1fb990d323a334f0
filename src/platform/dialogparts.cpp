#include "dialogparts.h"

#include "textcontrol.h"
#include "texteditview.h"
#include "textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zt {

namespace {

template <class W> W* named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

// A list tall enough for its rows, up to a handful; an empty one for five.
void fitRows(QListWidget* list) {
    const int rows = list->count() == 0 ? 5 : std::min(list->count(), 8);
    const int row = list->count() == 0 ? list->fontMetrics().height() + 2 : list->sizeHintForRow(0);
    list->setFixedHeight(row * rows + 2 * list->frameWidth());
}

void applyDefault(const Control& control, QWidget* widget) {
    if (control.value.isEmpty())
        return;
    switch (control.field.kind) {
    case Field::Text:
    case Field::Memo:
        control.field.model->setText(control.value);
        break;
    case Field::Check:
    case Field::Option:
        static_cast<QAbstractButton*>(widget)->setChecked(control.value == QLatin1String("1"));
        break;
    case Field::Combo:
        static_cast<QComboBox*>(widget)->setCurrentText(control.value);
        break;
    case Field::List: {
        auto* list = static_cast<QListWidget*>(widget);
        const auto rows = list->findItems(control.value, Qt::MatchExactly);
        if (!rows.isEmpty())
            list->setCurrentItem(rows.front());
        break;
    }
    case Field::Button:
    case Field::Group:
    case Field::Widget:
        break;
    }
}

// The captions that the control's own widget shows.
bool showsItsCaption(Field::Kind kind) {
    return kind == Field::Check || kind == Field::Option || kind == Field::Button ||
           kind == Field::Group || kind == Field::Widget;
}

} // namespace

DialogWindow::DialogWindow(const QString& name, const QString& caption) {
    setObjectName(name);
    setWindowTitle(caption);
    setModal(false);
}

void DialogWindow::reject() {
    if (m_cancel && m_cancel->isEnabled())
        m_cancel->click();
}

QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption) {
    return named(new QPushButton(caption, parent), name);
}

Field text(const char* name, TextControl& model, TextLineView*& view) {
    return {Field::Text, name,
            [name, &model, &view](QWidget* parent) -> QWidget* {
                view = named(new TextLineView(model, parent), name);
                return view;
            },
            &model};
}

Field memo(const char* name, TextControl& model, TextEditView*& view) {
    return {Field::Memo, name,
            [name, &model, &view](QWidget* parent) -> QWidget* {
                view = named(new TextEditView(model, parent), name);
                view->setTabChangesFocus(true);
                return view;
            },
            &model};
}

Field check(const char* name, QCheckBox*& box) {
    return {Field::Check, name, [name, &box](QWidget* parent) -> QWidget* {
                box = named(new QCheckBox(parent), name);
                return box;
            }};
}

Field option(const char* name, QRadioButton*& option) {
    return {Field::Option, name, [name, &option](QWidget* parent) -> QWidget* {
                option = named(new QRadioButton(parent), name);
                return option;
            }};
}

Field combo(const char* name, QComboBox*& combo, const QStringList& rows) {
    return {Field::Combo, name, [name, &combo, rows](QWidget* parent) -> QWidget* {
                combo = named(new QComboBox(parent), name);
                combo->setEditable(true);
                // Generated text is built from the text as typed: no completion
                // (which would also correct the case when the box loses the focus),
                // and what is typed does not become a row.
                combo->setCompleter(nullptr);
                combo->setInsertPolicy(QComboBox::NoInsert);
                combo->addItems(rows);
                return combo;
            }};
}

Field list(const char* name, QListWidget*& list, const QStringList& rows) {
    return {Field::List, name, [name, &list, rows](QWidget* parent) -> QWidget* {
                list = named(new QListWidget(parent), name);
                list->setSelectionMode(QAbstractItemView::SingleSelection);
                list->addItems(rows);
                fitRows(list);
                return list;
            }};
}

Field dropList(const char* name, QComboBox*& list, const QStringList& rows) {
    return {Field::Combo, name, [name, &list, rows](QWidget* parent) -> QWidget* {
                list = named(new QComboBox(parent), name);
                list->addItems(rows);
                list->setCurrentIndex(-1);
                return list;
            }};
}

Field button(const char* name, QPushButton*& button) {
    return {Field::Button, name, [name, &button](QWidget* parent) -> QWidget* {
                button = named(new QPushButton(parent), name);
                return button;
            }};
}

Field group(const char* name) {
    return {Field::Group, name,
            [name](QWidget* parent) -> QWidget* { return named(new QGroupBox(parent), name); }};
}

Field widget(const char* name, std::function<QWidget*(QWidget* parent)> make) {
    return {Field::Widget, name,
            [name, make](QWidget* parent) -> QWidget* { return named(make(parent), name); }};
}

FootButtons layOut(DialogWindow* window, const Controls& controls) {
    FootButtons foot;
    auto* fields = new QGridLayout;
    auto* buttons = new QDialogButtonBox(window);
    int row = -1;
    int column = 0;
    bool resizable = false;
    QHBoxLayout* groups = nullptr;
    QGridLayout* inGroup = nullptr;
    int groupCount = 0;
    // Where a control placed Beside goes: the group when the one before it went there.
    QGridLayout* besideIn = fields;

    for (const Control& control : controls) {
        QWidget* widget = control.field.make(window);
        const Field::Kind kind = control.field.kind;
        if (showsItsCaption(kind) && kind != Field::Widget) {
            if (auto* groupBox = qobject_cast<QGroupBox*>(widget))
                groupBox->setTitle(control.caption);
            else
                static_cast<QAbstractButton*>(widget)->setText(control.caption);
        }
        applyDefault(control, widget);
        if (control.limit) {
            TextControl* model = control.field.model;
            model->addChangeHandler([model, limit = control.limit] { limit(*model); });
        }
        const auto label = [&] {
            auto* caption = new QLabel(control.caption, window);
            caption->setBuddy(widget);
            return caption;
        };

        if (kind == Field::Group) {
            // A group opens a row of groups, or joins the row of the one before.
            if (control.place != Place::InGroup || !groups) {
                groups = new QHBoxLayout;
                fields->addLayout(groups, ++row, 0, 1, -1);
            }
            groups->addWidget(widget);
            inGroup = new QGridLayout(widget);
            groupCount = 0;
            continue;
        }
        switch (control.place) {
        case Place::Row:
            ++row;
            column = 2;
            besideIn = fields;
            if (!control.caption.isEmpty() && !showsItsCaption(kind))
                fields->addWidget(label(), row, 0);
            fields->addWidget(widget, row, 1);
            break;
        case Place::Beside:
            if (besideIn == inGroup && inGroup)
                inGroup->addWidget(widget, groupCount - 1, column++);
            else
                fields->addWidget(widget, row, column++);
            break;
        case Place::Line:
            besideIn = fields;
            if (!control.caption.isEmpty() && !showsItsCaption(kind))
                fields->addWidget(label(), ++row, 0, 1, -1);
            fields->addWidget(widget, ++row, 0, 1, -1);
            if (kind == Field::Memo) {
                fields->setRowStretch(row, 1);
                resizable = true;
            }
            break;
        case Place::InGroup:
            if (showsItsCaption(kind)) {
                inGroup->addWidget(widget, groupCount % 3, groupCount / 3);
            } else {
                inGroup->addWidget(label(), groupCount, 0);
                inGroup->addWidget(widget, groupCount, 1);
                column = 2;
                besideIn = inGroup;
            }
            ++groupCount;
            break;
        case Place::Accept:
            buttons->addButton(static_cast<QPushButton*>(widget), QDialogButtonBox::AcceptRole);
            static_cast<QPushButton*>(widget)->setDefault(true);
            foot.accept = static_cast<QPushButton*>(widget);
            break;
        case Place::Cancel:
            buttons->addButton(static_cast<QPushButton*>(widget), QDialogButtonBox::RejectRole);
            window->setCancelButton(static_cast<QPushButton*>(widget));
            foot.cancel = static_cast<QPushButton*>(widget);
            break;
        case Place::Help:
            buttons->addButton(static_cast<QPushButton*>(widget), QDialogButtonBox::HelpRole);
            foot.help = static_cast<QPushButton*>(widget);
            break;
        }
    }
    fields->setColumnStretch(1, 1);

    auto* layout = new QVBoxLayout(window);
    layout->addLayout(fields, 1);
    if (!buttons->buttons().isEmpty())
        layout->addWidget(buttons);
    else
        delete buttons;
    if (!resizable)
        layout->setSizeConstraint(QLayout::SetFixedSize);
    return foot;
}

} // namespace zt
