#pragma once

#include <array>
#include <chrono>
#include <map>
#include <optional>
#include <string>

#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

/// Stands in for attributes that could not be read: their last values, for up to 30 s. A charge that vanishes
/// for a moment helps nobody.
class SupplyMemory
{
public:
    /// The readings, completed as far as possible; without readings, the last ones. `now` is of one clock
    /// that only runs forward.
    SupplyReadings complete(std::optional<SupplyReadings> readings, std::chrono::milliseconds now);

    /// Everything is known to be unchanged at `now`, without having been read.
    void confirm(std::chrono::milliseconds now);

private:
    struct Known
    {
        SupplyReading reading;
        std::array<std::chrono::milliseconds, attributeCount> readAt{};
    };

    static void standIn(SupplyReading& reading, const Known& known, std::chrono::milliseconds now);
    static Known remembered(const SupplyReading& reading, const Known* before, std::chrono::milliseconds now);
    SupplyReadings lastReadings() const;

    std::map<std::string, Known> m_known;
};

} // namespace quindle
