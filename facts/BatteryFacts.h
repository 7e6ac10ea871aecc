#pragma once

#include <optional>
#include <vector>

#include "facts/Fact.h"

namespace quindle {

class QDBattery;

/// Adds what is told of the battery, in the order of a record. Null, for a computer without a battery: the
/// same facts, and none of them shown. `chargeLimit` is the percentage at which charging stops, if it is
/// limited.
void addBatteryFacts(std::vector<Fact>& facts, FactPlace place, const QDBattery* battery,
                     std::optional<int> chargeLimit);

} // namespace quindle
