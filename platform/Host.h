#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace quindle {

/// The present moment.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Now, with milliseconds, in any zone: who wants its day or time of day converts it to local time first.
    /// Each such conversion looks at the system's zone anew; comparing two moments does not.
    virtual QDateTime now() const = 0;
};

/// The computer as its user named it.
class Host
{
public:
    virtual ~Host() = default;

    /// The localized name of this computer; empty when it has none.
    virtual QString localizedName() const = 0;
};

/// Property-list files of the operating system, at fixed paths.
class SystemFiles
{
public:
    virtual ~SystemFiles() = default;

    /// The dictionary in the file at `path`; nothing when there is no such file or it holds something else.
    virtual std::optional<QVariantMap> propertyList(const QString& path) const = 0;
};

/// The current user's own folders.
class UserDirectories
{
public:
    virtual ~UserDirectories() = default;

    /// The folders in which applications keep their data, absolute, in search order; they need not exist.
    /// Empty when the user has none.
    virtual QStringList applicationSupportDirectories() const = 0;
};

} // namespace quindle
