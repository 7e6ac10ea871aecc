#pragma once

#include <optional>

#include <QVariantMap>

namespace quindle {

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
};

} // namespace quindle
