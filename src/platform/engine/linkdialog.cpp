#include "linkdialog.h"

#include "platform/runtimefailure.h"

#include <QLineEdit>

namespace zt {

namespace {

const QString kScheme = QStringLiteral("http://");

class LinkDialog : public PageDialog {
public:
    LinkDialog(QWidget* parent, const QString& href);
    QString address() const { return m_address->text(); }

private:
    QLineEdit* m_address;
};

LinkDialog::LinkDialog(QWidget* parent, const QString& href)
    : PageDialog(parent, QStringLiteral("Hyperlink"), "frmHyperlink"),
      m_address(
          addField("txtAddress", QStringLiteral("&Address:"), href.isEmpty() ? kScheme : href)) {
    addOkCancel([this] {
        const QString text = address().trimmed();
        return text.isEmpty() || text == kScheme
                   ? QStringLiteral("Type the address the link goes to.")
                   : QString();
    });
}

} // namespace

void runLinkDialog(QWidget* view, const PageCall& page) {
    const QVariantMap state = page(QStringLiteral("linkState"), {});
    Owned<LinkDialog> dialog(view, state.value(QStringLiteral("href")).toString());
    if (!dialog->execute())
        throw RuntimeFailure::cancel();
    page(QStringLiteral("applyLink"), {{"href", dialog->address()}});
}

} // namespace zt
