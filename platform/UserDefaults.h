#pragma once

#include <QString>
#include <QVariant>

namespace quindle {

/// One settings database, under the name that macOS gives such a thing: typed property-list values under
/// text keys. Every read goes to the database, so another process's change is seen at the next read without
/// a notification. Main thread only.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;

    /// The stored value in its stored type; integers are qint64.
    /// Invalid when there is none.
    /// A database that cannot be read at the moment answers as it did last, or as an empty one; one line is
    /// logged.
    virtual QVariant object(const QString& key) const = 0;

    /// Stores `value` (a property-list value); the database is written when it returns, and only if the value
    /// is different in type or content. On failure what was stored stays, and one line is logged once.
    virtual void setObject(const QString& key, const QVariant& value) = 0;

    /// Everything that is stored; empty where there is nothing.
    virtual QVariantMap dictionaryRepresentation() const = 0;

    /// The absolute path of the file that the values are in, for messages only; empty when they are in none.
    virtual QString file() const = 0;

    /// The stored value as an integer, converted as `integerFromObject` does; 0 when there is none.
    qint64 integer(const QString& key) const;

    /// Stores an integer; as `setObject`.
    void setInteger(const QString& key, qint64 value);

    /// The stored dictionary; empty when there is none or the value is of another type.
    QVariantMap dictionary(const QString& key) const;
};

/// The name of the database that the helper shares with the main application: that of their group.
QString groupDatabaseName();

/// Both settings databases of the helper. Main thread only.
class UserDefaultsDatabases
{
public:
    virtual ~UserDefaultsDatabases() = default;

    /// The helper's own database.
    /// It always exists, even where nothing can be stored.
    virtual UserDefaults& standard() = 0;

    /// The database of a group of applications, which lives as long as this
    /// object; null when it cannot be opened.
    /// Settings of the group then have their defaults, and are not kept.
    virtual UserDefaults* suite(const QString& suiteName) = 0;
};

} // namespace quindle
