#pragma once

#include <QString>

namespace zt {

// The per-user store behind every remembered value, addressed by application,
// section and key. Values are strings; readers convert them.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual QString getSetting(const QString& application, const QString& section,
                               const QString& key, const QString& defaultValue = {}) const = 0;
    virtual void saveSetting(const QString& application, const QString& section, const QString& key,
                             const QString& value) = 0;
};

// The store on QSettings in the desktop's native per-user format. One file per
// application name under the organisation folder; every write is flushed at once,
// since the program ends its process without an orderly shutdown.
class QtSettingsStore : public SettingsStore {
public:
    explicit QtSettingsStore(QString organization = QStringLiteral("zelvo-tessara"));
    QString getSetting(const QString& application, const QString& section, const QString& key,
                       const QString& defaultValue = {}) const override;
    void saveSetting(const QString& application, const QString& section, const QString& key,
                     const QString& value) override;

private:
    QString m_organization;
};

} // namespace zt
