#include "finddialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

class FindDialog : public PageDialog {
public:
    FindDialog(QWidget* parent, const PageCall& page);

private:
    QCheckBox* addCheck(const char* name, const QString& caption);
    void findNext();

    const PageCall& m_page;
    QLineEdit* m_text;
    QCheckBox* m_matchCase;
    QCheckBox* m_wholeWord;
    QRadioButton* m_up;
};

FindDialog::FindDialog(QWidget* parent, const PageCall& page)
    : PageDialog(parent, QStringLiteral("Find"), "frmFind"), m_page(page),
      m_text(addField("txtFind", QStringLiteral("Fi&nd what:"))),
      m_matchCase(addCheck("chkCase", QStringLiteral("Match &case"))),
      m_wholeWord(addCheck("chkWholeWord", QStringLiteral("&Whole word"))),
      m_up(new QRadioButton(QStringLiteral("&Up"), this)) {
    auto* down = new QRadioButton(QStringLiteral("&Down"), this);
    m_up->setObjectName(QStringLiteral("optUp"));
    down->setObjectName(QStringLiteral("optDown"));
    down->setChecked(true);
    auto* direction = new QHBoxLayout;
    direction->addWidget(m_up);
    direction->addWidget(down);
    direction->addStretch();
    form()->addRow(QStringLiteral("Direction:"), direction);

    QPushButton* next =
        addButton("btnFindNext", QStringLiteral("&Find Next"), QDialogButtonBox::ActionRole);
    QPushButton* close =
        addButton("btnClose", QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    next->setDefault(true);
    connect(next, &QPushButton::clicked, this, [this] { attempt([this] { findNext(); }); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

QCheckBox* FindDialog::addCheck(const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QLatin1String(name));
    form()->addRow(QString(), box);
    return box;
}

void FindDialog::findNext() {
    const QString text = m_text->text();
    if (text.isEmpty())
        return;
    const QVariantMap answer =
        m_page(QStringLiteral("findText"), {{"text", text},
                                            {"matchCase", m_matchCase->isChecked()},
                                            {"wholeWord", m_wholeWord->isChecked()},
                                            {"up", m_up->isChecked()}});
    say(answer.value(QStringLiteral("found")).toBool()
            ? QString()
            : QStringLiteral("\"%1\" is not in the page.").arg(text));
}

} // namespace

void runFindDialog(QWidget* view, const PageCall& page) {
    Owned<FindDialog> dialog(view, page);
    dialog->execute();
}

} // namespace zt
