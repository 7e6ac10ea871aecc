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
    std::optional<int> percent;   ///< 0 to 100; nothing where its driver only knows words
    std::optional<QString> level; ///< the driver's word ("Low", "Normal", "Full"); nothing where it has none

    bool operator==(const PeripheralBattery&) const = default;
};

/// The power-source service: what the operating system says about batteries, uninterruptible supplies and the
/// adapter. Main thread only.
class PowerSources
{
public:
    virtual ~PowerSources() = default;

    /// The external adapter's details ("Watts", a number); nothing when no adapter tells any.
    virtual std::optional<QVariantMap> externalAdapterDetails() = 0;

    /// Lists the sources and tells how many there are, described under 0 to n - 1 in the service's order.
    /// Nothing when the service cannot be asked, which is not the same as 0 sources.
    virtual std::optional<int> sourceCount() = 0;

    /// The description of one source of the last list; nothing when it cannot be had.
    virtual std::optional<QVariantMap> description(int source) = 0;

    /// The charge in percent (1 to 99) at which the computer stops charging its battery; nothing where
    /// charging is not limited or the driver knows no limit.
    virtual std::optional<int> chargeLimit() = 0;

    /// The batteries of devices beside the computer, in a stable order; none on most computers. They are no
    /// sources: nothing that the battery or computer model knows comes from them.
    virtual QList<PeripheralBattery> peripherals() = 0;
};

/// What the computer says of its power supplies without being asked: plugged, unplugged, a battery taken out
/// or put in, another charge. Main thread only.
class PowerEvents
{
public:
    virtual ~PowerEvents() = default;

    /// Calls `observer` from the main loop soon after something changed, once for all that was told by then;
    /// in place of the observer before. What changed has to be read. How often it calls is up to the drivers,
    /// which may say it a thousand times a second. A computer that tells nothing never calls.
    virtual void setObserver(std::function<void()> observer) = 0;
};

} // namespace quindle
