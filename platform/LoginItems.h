#pragma once

#include <optional>
#include <vector>

#include <QString>

namespace quindle {

/// What the session starts at login. Other programs may change the list at any moment, so nothing is
/// remembered but the meaning of an item's number. Changes are in the list when a call returns; one that
/// fails leaves it as it was, is logged (the same failure once) and is not reported to the caller, who looks
/// at the list again. Main thread only.
class LoginItems
{
public:
    /// One item as the list showed it when it was first seen.
    /// It keeps its meaning in later snapshots.
    using Item = int;

    virtual ~LoginItems() = default;

    /// The items in their order, none for an empty list; nothing when the list cannot be read.
    virtual std::optional<std::vector<Item>> snapshot() = 0;

    /// The file URL of what an item starts, in normal form (see normalFileUrl); that of the bundle where it
    /// starts a bundle's program.
    /// Nothing for an item that starts nothing, has gone or was never in a snapshot.
    virtual std::optional<QString> resolve(Item item) = 0;

    /// Puts a new item for `fileUrl` before the first one.
    virtual void insertBeforeFirst(const QString& fileUrl) = 0;

    /// Removes an item; does nothing when it is gone already.
    virtual void remove(Item item) = 0;

    /// Switches the login item known by an application's identifier on or off: while it is on, one item of
    /// the list starts the helper's bundle, however it got there; once it is off, none does.
    virtual void setEnabled(const QString& identifier, bool enabled) = 0;
};

} // namespace quindle
