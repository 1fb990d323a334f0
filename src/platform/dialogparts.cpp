#include "dialogparts.h"

#include "texteditview.h"
#include "textlineview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

template <class W> W* named(W* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
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

QCheckBox* makeCheck(QWidget* parent, const char* name, const QString& caption) {
    return named(new QCheckBox(caption, parent), name);
}

QRadioButton* makeOption(QWidget* parent, const char* name, const QString& caption) {
    return named(new QRadioButton(caption, parent), name);
}

QComboBox* makeCombo(QWidget* parent, const char* name, const QStringList& rows) {
    auto* combo = named(new QComboBox(parent), name);
    combo->setEditable(true);
    // What the user types is the combo's text; it does not become a row.
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->addItems(rows);
    return combo;
}

QListWidget* makeList(QWidget* parent, const char* name, const QStringList& rows) {
    auto* list = named(new QListWidget(parent), name);
    list->addItems(rows);
    return list;
}

QLabel* makeLabel(QWidget* parent, const QString& caption, QWidget* field) {
    auto* label = new QLabel(caption, parent);
    label->setBuddy(field);
    return label;
}

TextLineView* makeLine(QWidget* parent, const char* name, TextControl& field) {
    return named(new TextLineView(field, parent), name);
}

TextEditView* makeText(QWidget* parent, const char* name, TextControl& field) {
    return named(new TextEditView(field, parent), name);
}

QDialogButtonBox* makeButtonRow(DialogWindow* window, QPushButton* accept, QPushButton* cancel,
                                QPushButton* help) {
    auto* row = new QDialogButtonBox(window);
    row->addButton(accept, QDialogButtonBox::AcceptRole);
    row->addButton(cancel, QDialogButtonBox::RejectRole);
    if (help)
        row->addButton(help, QDialogButtonBox::HelpRole);
    accept->setDefault(true);
    window->setCancelButton(cancel);
    return row;
}

} // namespace zt
