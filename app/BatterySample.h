#pragma once

#include <optional>

#include "samples/Sample.h"

namespace quindle {

class QDBattery;

/// What the battery does now. On the mains, neither charging nor full (as where a limit holds it) has no name
/// of its own, and is Unknown.
SampleState sampleState(const QDBattery& battery);

/// Watts into the battery, negative out of it; nothing where they are not known.
std::optional<double> batteryPower(const QDBattery& battery);

/// What the battery's last refresh found, as a sample of that moment (seconds since 1970, UTC). A charge
/// above 100 % counts as full. Nothing where the charge is not known.
std::optional<Sample> batterySample(const QDBattery& battery, qint64 moment);

} // namespace quindle
