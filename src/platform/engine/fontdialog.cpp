#include "fontdialog.h"

#include "platform/runtimefailure.h"

#include <QColor>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace zt {

namespace {

class FontDialog : public PageDialog {
public:
    FontDialog(QWidget* parent, const QVariantMap& state);
    // What the user changed, by the names the page takes them in.
    QJsonObject changes() const;

private:
    QString colourProblem() const;

    QVariantMap m_state;
    QComboBox* m_face;
    QComboBox* m_size;
    QLineEdit* m_colour;
};

FontDialog::FontDialog(QWidget* parent, const QVariantMap& state)
    : PageDialog(parent, QStringLiteral("Font"), "frmFont"), m_state(state),
      m_face(new QComboBox(this)), m_size(new QComboBox(this)),
      m_colour(newField("txtColour", state.value("color").toString())) {
    m_face->setObjectName(QStringLiteral("cmbFace"));
    m_face->setEditable(true);
    m_face->setInsertPolicy(QComboBox::NoInsert);
    m_face->setCompleter(nullptr);
    m_face->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_face->addItems(QFontDatabase::families());
    m_face->setEditText(state.value("face").toString());
    form()->addRow(QStringLiteral("&Face:"), m_face);

    // A selection of several sizes has none; it keeps them unless one is picked.
    m_size->setObjectName(QStringLiteral("cmbSize"));
    m_size->addItem(QStringLiteral("(as it is)"), QString());
    for (int size = 1; size <= 7; ++size)
        m_size->addItem(QString::number(size), QString::number(size));
    m_size->setCurrentIndex(qMax(0, m_size->findData(state.value("size").toString())));
    form()->addRow(QStringLiteral("&Size:"), m_size);

    m_colour->setPlaceholderText(QStringLiteral("#rrggbb"));
    QPushButton* pick =
        addHelper(m_colour, QStringLiteral("&Colour:"), "btnColour", QStringLiteral("Choose..."));
    connect(pick, &QPushButton::clicked, this, [this] {
        const QColor chosen = QColorDialog::getColor(QColor(m_colour->text()), this);
        if (chosen.isValid())
            m_colour->setText(chosen.name());
    });
    addOkCancel([this] { return colourProblem(); });
}

QJsonObject FontDialog::changes() const {
    QJsonObject changed;
    const QString face = m_face->currentText();
    if (!face.isEmpty() && face != m_state.value("face").toString())
        changed.insert("face", face);
    const QString size = m_size->currentData().toString();
    if (!size.isEmpty() && size != m_state.value("size").toString())
        changed.insert("size", size);
    const QString colour = m_colour->text();
    if (!colour.isEmpty() && colour != m_state.value("color").toString())
        changed.insert("color", colour);
    return changed;
}

QString FontDialog::colourProblem() const {
    const QString colour = m_colour->text();
    if (colour.isEmpty() || QColor::isValidColorName(colour))
        return {};
    return QStringLiteral("\"%1\" is not a colour. Type it as #rrggbb, or choose one.").arg(colour);
}

} // namespace

void runFontDialog(QWidget* view, const PageCall& page) {
    const QVariantMap state = page(QStringLiteral("fontState"), {});
    Owned<FontDialog> dialog(view, state);
    if (!dialog->execute())
        throw RuntimeFailure::cancel();
    const QJsonObject changed = dialog->changes();
    if (!changed.isEmpty())
        page(QStringLiteral("applyFont"), changed);
}

} // namespace zt
