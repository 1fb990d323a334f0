#include "imagedialog.h"

#include "platform/runtimefailure.h"

#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QUrl>

namespace zt {

namespace {

// The attributes the dialog edits, in the order a new picture gets them.
struct Attribute {
    const char* name;
    const char* control;
    const char* label;
};
constexpr Attribute kAttributes[] = {
    {"src", "txtSource", "&Source:"},
    {"alt", "txtAlternate", "&Alternate text:"},
    {"width", "txtWidth", "&Width:"},
    {"height", "txtHeight", "&Height:"},
};

// A file in the document's folder tree is named from there, as a page author
// would write it; any other by its address.
QString sourceFor(const QString& file, const QString& folder) {
    if (!folder.isEmpty()) {
        const QString relative = QDir(folder).relativeFilePath(file);
        if (!relative.startsWith(QLatin1String("../")))
            return relative;
    }
    return QUrl::fromLocalFile(file).toString();
}

class ImageDialog : public PageDialog {
public:
    ImageDialog(QWidget* parent, const QString& folder, const QVariantMap& state);
    QJsonObject values() const;

private:
    std::vector<QLineEdit*> m_fields;
};

ImageDialog::ImageDialog(QWidget* parent, const QString& folder, const QVariantMap& state)
    : PageDialog(parent, QStringLiteral("Image"), "frmImage") {
    // Pixels, or a share of the page.
    const QRegularExpression size(QStringLiteral("\\d{0,5}%?"));
    for (const Attribute& attribute : kAttributes) {
        const QString value = state.value(QLatin1String(attribute.name)).toString();
        const QString label = QLatin1String(attribute.label);
        QLineEdit* field = nullptr;
        if (m_fields.empty()) {
            field = newField(attribute.control, value);
            QPushButton* browse = addHelper(field, label, "btnBrowse", QStringLiteral("Browse..."));
            connect(browse, &QPushButton::clicked, this, [this, field, folder] {
                const QString file = QFileDialog::getOpenFileName(
                    this, QStringLiteral("Picture"), folder,
                    QStringLiteral("Pictures (*.gif *.jpg *.jpeg *.png *.bmp *.svg *.webp *.ico);;"
                                   "All files (*)"));
                if (!file.isEmpty())
                    field->setText(sourceFor(file, folder));
            });
        } else {
            field = addField(attribute.control, label, value);
        }
        if (m_fields.size() >= 2) {
            field->setValidator(new QRegularExpressionValidator(size, field));
            field->setMinimumWidth(0);
            field->setMaximumWidth(
                field->fontMetrics().horizontalAdvance(QStringLiteral("000000%")) + 16);
        }
        m_fields.push_back(field);
    }
    addOkCancel([this] {
        return m_fields.front()->text().isEmpty()
                   ? QStringLiteral("Type where the picture comes from, or Browse for it.")
                   : QString();
    });
}

QJsonObject ImageDialog::values() const {
    QJsonObject values;
    for (size_t i = 0; i < m_fields.size(); ++i)
        values.insert(QLatin1String(kAttributes[i].name), m_fields[i]->text());
    return values;
}

} // namespace

void runImageDialog(QWidget* view, const QString& folder, const PageCall& page) {
    const QVariantMap state = page(QStringLiteral("imageState"), {});
    Owned<ImageDialog> dialog(view, folder, state);
    if (!dialog->execute())
        throw RuntimeFailure::cancel();
    page(QStringLiteral("applyImage"), dialog->values());
}

} // namespace zt
