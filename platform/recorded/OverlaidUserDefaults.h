#pragma once

#include <map>
#include <memory>

#include "platform/UserDefaults.h"

namespace quindle {

/// A database that reads from another one, with its own writes laid over it in memory.
class OverlaidUserDefaults : public UserDefaults
{
public:
    explicit OverlaidUserDefaults(UserDefaults& below)
        : m_below(below)
    {
    }

    QVariant object(const QString& key) const override;
    void setObject(const QString& key, const QVariant& value) override;
    QVariantMap dictionaryRepresentation() const override;
    QString file() const override { return m_below.file(); }

private:
    UserDefaults& m_below;
    QVariantMap m_written;
};

/// The databases of a computer whose settings must not change.
class OverlaidUserDefaultsDatabases : public UserDefaultsDatabases
{
public:
    explicit OverlaidUserDefaultsDatabases(UserDefaultsDatabases& below);

    UserDefaults& standard() override { return m_standard; }
    UserDefaults* suite(const QString& suiteName) override;

private:
    UserDefaultsDatabases& m_below;
    OverlaidUserDefaults m_standard;
    std::map<QString, std::unique_ptr<OverlaidUserDefaults>> m_suites;
};

} // namespace quindle
