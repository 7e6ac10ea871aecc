#pragma once

#include <optional>
#include <vector>

#include "facts/Fact.h"

namespace quindle {

class QDBattery;

/// Adds the facts of the battery, in the report's order. With null, for a computer without a battery, the
/// same facts are added and none is shown. `chargeLimit` is the percentage at which charging stops, if it is
/// limited.
void addBatteryFacts(std::vector<Fact>& facts, FactPlace place, const QDBattery* battery,
                     std::optional<int> chargeLimit);

} // namespace quindle
