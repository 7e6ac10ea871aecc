#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QString>
#include <QVariantMap>

namespace quindle {

/// The battery of something beside the computer: a mouse, a keyboard, a headset.
struct PeripheralBattery
{
    QString name;                 ///< what its maker calls it; never empty
    std::optional<int> percent;   ///< 0 to 100; nothing where its driver only has words
    std::optional<QString> level; ///< the driver's word ("Low", "Normal", "Full"); nothing where it has none

    bool operator==(const PeripheralBattery&) const = default;
};

/// The power-source service: what the operating system says about batteries, uninterruptible supplies and
/// the adapter. No call waits longer than a fraction of a second for a slow driver, and none is fatal. Main
/// thread only.
class PowerSources
{
public:
    virtual ~PowerSources() = default;

    /// The external adapter's details: "Watts", a whole number, the most it can deliver. Nothing when there
    /// is no adapter, or one without details.
    virtual std::optional<QVariantMap> externalAdapterDetails() = 0;

    /// Lists the sources and returns how many there are; `description` then knows them as 0 to n - 1, in the
    /// service's order.
    /// Nothing when the service cannot be asked, which is not the same as 0 sources.
    virtual std::optional<int> sourceCount() = 0;

    /// The description of one source of the last list, as it was when listed, in the keys and units of I/O
    /// Kit's power sources. Nothing for a number outside the list, or before there is one.
    virtual std::optional<QVariantMap> description(int source) = 0;

    /// The charge in percent (1 to 99) at which the computer stops charging its battery; nothing where
    /// charging is not limited or the driver reports no limit.
    virtual std::optional<int> chargeLimit() = 0;

    /// The voltage (V, above 0) with which the registry's charges were computed from the driver's own
    /// energies; nothing where the driver counts charges.
    virtual std::optional<double> voltageOfEnergies() = 0;

    /// The batteries of devices beside the computer, in a stable order; none on most computers, and none
    /// while their services cannot be asked. They are not sources: the models of battery and computer ignore
    /// them. Only while somebody looks, because some drivers ask the device over its radio.
    virtual QList<PeripheralBattery> peripherals() = 0;
};

/// Changes that the computer announces by itself: plugged, unplugged, a battery taken out or put in, another
/// charge. Main thread only.
class PowerEvents
{
public:
    virtual ~PowerEvents() = default;

    /// Replaces the observer, which must not be empty. It is called from the main loop soon after something
    /// changed, once for all changes announced by then, and is not passed them: they have to be read. How
    /// often depends on the drivers, some of which announce a thousand times a second. On a computer that
    /// announces nothing it is never called; where listening fails, one line is logged besides.
    virtual void setObserver(std::function<void()> observer) = 0;
};

} // namespace quindle
