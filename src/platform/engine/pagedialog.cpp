#include "pagedialog.h"

#include "platform/runtimefailure.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

// Wide enough for an address or a path without scrolling at once.
constexpr int kFieldWidth = 280;

} // namespace

PageDialog::PageDialog(QWidget* parent, const QString& title, const char* name)
    : QDialog(parent), m_form(new QFormLayout), m_message(new QLabel(this)),
      m_buttons(new QDialogButtonBox(this)) {
    setObjectName(QLatin1String(name));
    setWindowTitle(title);
    setModal(true);
    m_form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_message->setObjectName(QStringLiteral("lblMessage"));
    m_message->setWordWrap(true);
    m_message->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(m_message);
    layout->addWidget(m_buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

bool PageDialog::execute() {
    // The view may take the dialog with it while the dialog is up; then nothing of
    // this object may be read any more.
    const QPointer<PageDialog> alive(this);
    const int result = exec();
    if (!alive)
        throw RuntimeFailure::objectNotSet();
    if (m_failure)
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    return result == QDialog::Accepted;
}

QLineEdit* PageDialog::newField(const char* name, const QString& text) {
    auto* field = new QLineEdit(text, this);
    field->setObjectName(QLatin1String(name));
    field->setMinimumWidth(kFieldWidth);
    return field;
}

QLineEdit* PageDialog::addField(const char* name, const QString& label, const QString& text) {
    QLineEdit* field = newField(name, text);
    m_form->addRow(label, field);
    return field;
}

QPushButton* PageDialog::addHelper(QWidget* field, const QString& label, const char* name,
                                   const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(button);
    m_form->addRow(label, row);
    if (auto* buddy = qobject_cast<QLabel*>(m_form->labelForField(row)))
        buddy->setBuddy(field);
    return button;
}

QPushButton* PageDialog::addButton(const char* name, const QString& caption,
                                   QDialogButtonBox::ButtonRole role) {
    QPushButton* button = m_buttons->addButton(caption, role);
    button->setObjectName(QLatin1String(name));
    return button;
}

void PageDialog::addOkCancel(std::function<QString()> check) {
    QPushButton* ok = addButton("OKButton", QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    QPushButton* cancel =
        addButton("CancelButton", QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this, check = std::move(check)] {
        const QString problem = check ? check() : QString();
        if (problem.isEmpty())
            accept();
        else
            say(problem);
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void PageDialog::say(const QString& message) {
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
}

void PageDialog::attempt(const std::function<void()>& work) {
    try {
        work();
    } catch (...) {
        m_failure = std::current_exception();
        reject();
    }
}

} // namespace zt
