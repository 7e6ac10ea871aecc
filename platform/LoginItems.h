#pragma once

#include <optional>
#include <vector>

#include <QString>

namespace quindle {

/// What the session starts at login. Main thread only.
class LoginItems
{
public:
    /// One item as the list showed it when the snapshot was taken.
    using Item = int;

    virtual ~LoginItems() = default;

    /// The items in their order; nothing when the list cannot be had.
    virtual std::optional<std::vector<Item>> snapshot() = 0;

    /// The file URL an item starts; nothing when it cannot be resolved.
    virtual std::optional<QString> resolve(Item item) = 0;

    /// Puts a new item for `fileUrl` before the first one. Failures are silent.
    virtual void insertBeforeFirst(const QString& fileUrl) = 0;

    /// Takes an item out. Failures are silent.
    virtual void remove(Item item) = 0;

    /// Switches the login item known by an application's identifier on or off. Failures are silent.
    virtual void setEnabled(const QString& identifier, bool enabled) = 0;
};

} // namespace quindle
