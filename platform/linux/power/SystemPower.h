#pragma once

#include <optional>
#include <vector>

#include "platform/linux/power/CombinedBattery.h"
#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

/// Something that may feed the computer.
struct ExternalSupply
{
    std::optional<bool> isOnline; ///< missing when it is not reported
    std::optional<qint64> watts;  ///< what an online USB Power Delivery supply can give
};

/// The computer's supplies at one moment.
struct SystemPower
{
    std::vector<Battery> batteries; ///< those that are present and whose drivers are ready
    std::vector<Battery> uninterruptibles;
    std::vector<ExternalSupply> externals;
};

SystemPower systemPowerFrom(const SupplyReadings& readings);

ExternalSupply externalSupplyFrom(const SupplyAttributes& attributes);

/// Whether the computer is fed from outside.
bool isExternallyPowered(const SystemPower& power);

} // namespace quindle
