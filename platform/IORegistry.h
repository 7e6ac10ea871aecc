#pragma once

#include <optional>

#include <QVariant>

namespace quindle {

/// The handle of one open registry entry; 0 means none.
using RegistryObject = quint32;

/// A 32-bit I/O status; 0 is success.
using IOStatus = qint32;

inline constexpr IOStatus kIOReturnSuccess = 0;
inline constexpr IOStatus kIOReturnStillOpen = static_cast<IOStatus>(0xe00002d2);
inline constexpr IOStatus kIOReturnNotFound = static_cast<IOStatus>(0xe00002f0);

/// The I/O registry: entries found by name or class, each a dictionary of properties. Every read asks the
/// computer anew. Main thread only.
class IORegistry
{
public:
    virtual ~IORegistry() = default;

    /// Opens the first entry of that name ("AppleSmartBattery"). 0 when there is none.
    virtual RegistryObject serviceMatchingName(const QString& name) = 0;

    /// Opens the first entry of that class ("IOPlatformExpertDevice"). 0 when there is none.
    virtual RegistryObject serviceMatchingClass(const QString& className) = 0;

    /// One property as it stands now. The invalid value when the handle is not open or there is no such
    /// property. An entry that has gone has none, or goes on saying what it said last. Integers are qint64.
    virtual QVariant property(RegistryObject object, const QString& key) = 0;

    /// All properties as they stand now; empty in the cases above.
    virtual QVariantMap properties(RegistryObject object) = 0;

    /// Whether there is an entry of that name now, for entries that come and go while the program runs;
    /// nothing on a computer where what was found at the start stays what it is.
    virtual std::optional<bool> isMatched(const QString& name) = 0;

    /// Gives the handle back. A status other than 0 for a handle that is not open, 0 included.
    virtual IOStatus release(RegistryObject object) = 0;
};

} // namespace quindle
