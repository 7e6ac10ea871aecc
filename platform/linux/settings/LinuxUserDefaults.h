#pragma once

#include <map>
#include <memory>

#include "platform/UserDefaults.h"
#include "platform/linux/settings/PropertyListFile.h"

namespace quindle {

/// Whether files may be changed: a program that only reads leaves a damaged file where it is.
enum class SettingsAccess { ReadAndWrite, ReadOnly };

/// One settings database in one property-list file; docs/settings.md says how it is kept whole.
class LinuxUserDefaults : public UserDefaults
{
public:
    /// `path` is absolute. Neither the file nor its folder need be there.
    explicit LinuxUserDefaults(const QString& path, SettingsAccess access = SettingsAccess::ReadAndWrite);

    QVariant object(const QString& key) const override;

    /// Replaces the file only when the stored value differs in type or value. A value that is not of a
    /// property-list type is not stored.
    void setObject(const QString& key, const QVariant& value) override;

    QVariantMap dictionaryRepresentation() const override;

    QString file() const override;

private:
    void refresh() const;
    bool setAside() const;
    bool setAsideLocked() const;
    bool holds(const QString& key, const QByteArray& xml) const;
    QString storeLocked(const QString& key, const QVariant& value, const QByteArray& xml);
    QString store(const QString& key, const QVariant& value);
    void reportReading(const QString& failure) const;

    SettingsAccess m_access;

    // Reading keeps the last parse and puts a damaged file away; no caller notices either.
    mutable PropertyListFile m_file;
    mutable QString m_readFailure;
    mutable bool m_leftDamaged = false;
    QString m_writeFailure;
};

/// The databases in one folder.
class LinuxUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    /// `folder` as `settingsFolder` gives it.
    explicit LinuxUserDefaultsDatabases(QString folder, SettingsAccess access = SettingsAccess::ReadAndWrite);

    UserDefaults& standard() override { return m_standard; }

    /// Null for a name that is not a plain file name, and when there is no folder.
    UserDefaults* suite(const QString& suiteName) override;

private:
    QString m_folder;
    SettingsAccess m_access;
    LinuxUserDefaults m_standard;
    std::map<QString, std::unique_ptr<LinuxUserDefaults>> m_suites;
};

} // namespace quindle
