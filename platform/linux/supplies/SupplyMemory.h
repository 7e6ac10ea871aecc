#pragma once

#include <array>
#include <chrono>
#include <map>
#include <optional>
#include <string>

#include "platform/linux/supplies/SupplyReading.h"

namespace quindle {

/// What stands in for attributes whose reading failed: what they were last, for up to 30 s. A charge of
/// nothing for a moment helps nobody.
class SupplyMemory
{
public:
    /// The readings, completed as far as possible. Without readings it is what was read last. `now` is of one
    /// clock that only runs forward.
    SupplyReadings complete(std::optional<SupplyReadings> readings, std::chrono::milliseconds now);

    /// Everything is known to have been at `now` as it was read last, though nobody read it.
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
