#pragma once

#include <QString>
#include <QVariant>

namespace quindle {

/// One settings database: typed property-list values under text keys. Every read goes to the database, so
/// that another process's change is seen without being told. Main thread only.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;

    /// The stored value; invalid when there is none or the database cannot be read.
    virtual QVariant object(const QString& key) const = 0;

    /// Stores `value` (a property-list value). A failure is logged once and otherwise silent.
    virtual void setObject(const QString& key, const QVariant& value) = 0;

    /// Everything that is stored.
    virtual QVariantMap dictionaryRepresentation() const = 0;

    /// The file that the values are in, for messages; empty when they are in none.
    virtual QString file() const = 0;

    /// The stored value as an integer, converted as `integerFromObject` does; 0 when there is none.
    qint64 integer(const QString& key) const;

    /// Stores an integer.
    void setInteger(const QString& key, qint64 value);

    /// The stored dictionary; empty when there is none or the value is of another type.
    QVariantMap dictionary(const QString& key) const;
};

/// Both databases of the helper.
class UserDefaultsDatabases
{
public:
    virtual ~UserDefaultsDatabases() = default;

    /// The helper's own database.
    virtual UserDefaults& standard() = 0;

    /// The database of a group of applications ("group.fernhollow.Quindle"); null when it cannot be opened.
    virtual UserDefaults* suite(const QString& suiteName) = 0;
};

} // namespace quindle
