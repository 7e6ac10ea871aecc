#pragma once

#include <optional>
#include <vector>

#include "facts/Fact.h"

namespace quindle {

class QDBattery;

/// What the model of the battery does not know.
struct BatteryExtras
{
    std::optional<int> chargeLimit;          ///< the percentage at which charging stops, if it is limited
    std::optional<double> voltageOfEnergies; ///< see PowerSources
    bool showsWattHours = false;
};

/// Adds the facts of the battery, in the report's order. With null, for a computer without a battery, the
/// same facts are added and none is shown.
void addBatteryFacts(std::vector<Fact>& facts, FactPlace place, const QDBattery* battery,
                     const BatteryExtras& extras);

} // namespace quindle
