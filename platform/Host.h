#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace quindle {

/// The present moment. It may jump, forwards and back, when the user or the network sets the clock; what has
/// to happen after a while is RunLoop's business. Any thread.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Now, with milliseconds, always valid, in any zone: for its day or time of day convert it to local time
    /// first. Each such conversion looks at the system's zone anew; comparing two moments does not.
    virtual QDateTime now() const = 0;
};

/// The computer as its user named it. Main thread only.
class Host
{
public:
    virtual ~Host() = default;

    /// The localized name of this computer, which may change while the program runs.
    /// Empty when it has none or the name cannot be read.
    virtual QString localizedName() const = 0;
};

/// Property-list files of the operating system, at fixed paths. Main thread only.
class SystemFiles
{
public:
    virtual ~SystemFiles() = default;

    /// The dictionary in the file at `path` (absolute), read at each call. Nothing when there is no such
    /// file, when it cannot be read, and when it holds anything but a dictionary; nothing is logged, because
    /// most computers have none of these files.
    virtual std::optional<QVariantMap> propertyList(const QString& path) const = 0;
};

/// The current user's own folders. Main thread only.
class UserDirectories
{
public:
    virtual ~UserDirectories() = default;

    /// The folders in which applications keep their data, absolute, in search order; they need not exist and
    /// are not made.
    /// Empty when the user has none.
    virtual QStringList applicationSupportDirectories() const = 0;
};

} // namespace quindle
