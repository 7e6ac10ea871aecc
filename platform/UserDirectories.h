#pragma once

#include <QStringList>

namespace quindle {

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
