#include "settingsstore.h"

#include <QSettings>

namespace zt {

namespace {

// Section and key become one QSettings key. A slash would be read as a further
// level, so it is kept apart from the separator.
QString address(const QString& section, const QString& key) {
    QString s = section;
    QString k = key;
    s.replace(QLatin1Char('/'), QLatin1Char('\\'));
    k.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return s + QLatin1Char('/') + k;
}

} // namespace

QtSettingsStore::QtSettingsStore(QString organization) : m_organization(std::move(organization)) {}

QString QtSettingsStore::getSetting(const QString& application, const QString& section,
                                    const QString& key, const QString& defaultValue) const {
    const QSettings settings(QSettings::NativeFormat, QSettings::UserScope, m_organization,
                             application);
    const QVariant value = settings.value(address(section, key));
    return value.isValid() ? value.toString() : defaultValue;
}

void QtSettingsStore::saveSetting(const QString& application, const QString& section,
                                  const QString& key, const QString& value) {
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, m_organization, application);
    settings.setValue(address(section, key), value);
    settings.sync();
}

} // namespace zt
