#pragma once

#include <optional>
#include <vector>

#include <QString>

namespace quindle {

/// What the session starts at login. Main thread only.
class LoginItems
{
public:
    /// One item as the list showed it when it was first seen. It keeps its meaning in later snapshots.
    using Item = int;

    virtual ~LoginItems() = default;

    /// The items in their order; nothing when the list cannot be had.
    virtual std::optional<std::vector<Item>> snapshot() = 0;

    /// The file URL an item starts, that of the bundle where it starts a bundle's program; nothing when it
    /// cannot be resolved.
    virtual std::optional<QString> resolve(Item item) = 0;

    /// Puts a new item for `fileUrl` before the first one. Failures are silent.
    virtual void insertBeforeFirst(const QString& fileUrl) = 0;

    /// Takes an item out. Failures are silent.
    virtual void remove(Item item) = 0;

    /// Switches the login item known by an application's identifier on or off: while it is on, one item of
    /// the list starts the helper's bundle, whichever way it came there; once it is off, none does. Failures
    /// are silent.
    virtual void setEnabled(const QString& identifier, bool enabled) = 0;
};

} // namespace quindle
