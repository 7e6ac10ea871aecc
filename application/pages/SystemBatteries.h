#pragma once

#include <vector>

#include <QVariantMap>

#include "facts/Fact.h"

namespace quindle {

/// Each battery and uninterruptible supply of the computer by itself, from the power-source service's
/// descriptions of them; none where there are fewer than two, since one alone is what all other facts are
/// about. The facts are of the group Devices, each with its percentage where it is known.
std::vector<Fact> systemBatteryFacts(const std::vector<QVariantMap>& descriptions);

} // namespace quindle
