#pragma once

#include <vector>

#include <QVariantMap>

#include "facts/Fact.h"

namespace quindle {

class PowerSources;

/// Each battery and uninterruptible supply of the computer by itself, from the power-source service's
/// descriptions of them; none where there are fewer than two, since one alone is what all other facts are
/// about. Each has its percentage where it is known.
std::vector<Fact> systemBatteryFacts(const std::vector<QVariantMap>& descriptions,
                                     FactPlace place = FactPlace::View);

/// Adds them. The menu always gets the same number, of which those without a battery are hidden; with null
/// all are.
void addSystemBatteryFacts(std::vector<Fact>& facts, FactPlace place, PowerSources* powerSources);

} // namespace quindle
