#include "remember.h"

#include "shell/document.h"

#include "platform/runtimefailure.h"
#include "platform/settingsstore.h"
#include "platform/textcontrol.h"
#include "platform/vbstrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace zt {

Remembered remembered(const QString& key, const QString& defaultValue, TextControl& field) {
    return {key, defaultValue, [&field] { return field.text(); },
            [&field](const QString& value) { field.setText(value); }};
}

Remembered remembered(const QString& key, const QString& defaultValue, QCheckBox* box) {
    return {key, defaultValue, [box] { return QString::number(checkValue(box)); },
            [box](const QString& value) { setCheckValue(box, value); }};
}

Remembered remembered(const QString& key, const QString& defaultValue, QComboBox* combo) {
    return {key, defaultValue, [combo] { return combo->currentText(); },
            [combo](const QString& value) {
                if (combo->isEditable())
                    combo->setEditText(value);
                else
                    combo->setCurrentText(value);
            }};
}

Remembered remembered(const QString& key, const QString& defaultValue, QRadioButton* option) {
    return {
        key, defaultValue,
        [option] { return option->isChecked() ? QStringLiteral("true") : QStringLiteral("false"); },
        [option](const QString& value) { setOptionValue(option, asBoolean(value)); }};
}

SettingsSection::SettingsSection(SettingsStore& store, QString section)
    : m_store(store), m_section(std::move(section)) {}

QString SettingsSection::get(const QString& key, const QString& defaultValue) const {
    return m_store.getSetting(document::kApp, m_section, key, defaultValue);
}

void SettingsSection::save(const QString& key, const QString& value) {
    m_store.saveSetting(document::kApp, m_section, key, value);
}

void SettingsSection::save(const std::vector<Remembered>& fields) {
    for (const Remembered& field : fields)
        save(field.key, field.value());
}

void SettingsSection::restore(const std::vector<Remembered>& fields) {
    for (const Remembered& field : fields)
        field.restore(get(field.key, field.defaultValue));
}

int checkValue(const QCheckBox* box) {
    switch (box->checkState()) {
    case Qt::Unchecked:
        return 0;
    case Qt::Checked:
        return 1;
    case Qt::PartiallyChecked:
        return 2;
    }
    return 0;
}

void setCheckValue(QCheckBox* box, const QString& value) {
    const int number = vb::CInt(value);
    if (number == 0)
        box->setCheckState(Qt::Unchecked);
    else if (number == 1)
        box->setCheckState(Qt::Checked);
    else if (number == 2)
        box->setCheckState(Qt::PartiallyChecked);
    else
        throw RuntimeFailure::invalidPropertyValue();
}

void setOptionValue(QRadioButton* option, bool on) {
    if (on || !option->autoExclusive()) {
        option->setChecked(on);
        return;
    }
    // Qt keeps one option of an exclusive group on; the program may have none.
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
}

bool asBoolean(const QString& text) {
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("true"))
        return true;
    if (word == QLatin1String("false"))
        return false;
    return vb::CDbl(text) != 0;
}

} // namespace zt
