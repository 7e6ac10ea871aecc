#pragma once

#include <optional>

#include <QVariant>

namespace quindle {

/// The handle of one open registry entry; 0 means none. A handle is not reused while it is open.
using RegistryObject = quint32;

/// A 32-bit I/O status; 0 is success. The values are those of I/O Kit.
using IOStatus = qint32;

inline constexpr IOStatus kIOReturnSuccess = 0;
inline constexpr IOStatus kIOReturnStillOpen = static_cast<IOStatus>(0xe00002d2); ///< a handle is still open
inline constexpr IOStatus kIOReturnNotFound = static_cast<IOStatus>(0xe00002f0);  ///< there is no such entry

/// The I/O registry: entries found by name or class, each a dictionary of properties in I/O Kit's keys and
/// units (mAh, mV, mA, minutes, tenths of a kelvin). Every read asks for the present state; how fresh that is
/// depends on the back end, since drivers publish when they please. Nothing here is fatal. Main thread only.
class IORegistry
{
public:
    virtual ~IORegistry() = default;

    /// Opens the first entry of that name ("AppleSmartBattery"), for the caller to release.
    /// 0 when there is none at the moment: it may come later.
    virtual RegistryObject serviceMatchingName(const QString& name) = 0;

    /// Opens the first entry of that class ("IOPlatformExpertDevice"), for the caller to release.
    /// 0 when there is none.
    virtual RegistryObject serviceMatchingClass(const QString& className) = 0;

    /// One property as it stands now.
    /// The invalid value when the handle is not open, when there is no such property and when it cannot be
    /// read; 0 and false are real values.
    /// An entry that has gone has none, or still answers as it did last.
    /// Integers are qint64.
    virtual QVariant property(RegistryObject object, const QString& key) = 0;

    /// All properties as they stand now, of one and the same moment; empty in the cases above.
    virtual QVariantMap properties(RegistryObject object) = 0;

    /// Whether there is an entry of that name now, for entries that come and go while the program runs;
    /// nothing on a computer whose entries stay what they were at the start.
    virtual std::optional<bool> isMatched(const QString& name) = 0;

    /// Releases the handle: success, or another status for a handle that is not open, 0 included. A released
    /// handle reads as one without properties.
    virtual IOStatus release(RegistryObject object) = 0;
};

} // namespace quindle
