#include "platform/linux/supplies/SupplyMemory.h"

#include <utility>

namespace quindle {

namespace {

/// A few refreshes.
constexpr std::chrono::milliseconds longestStandIn(30'000);

} // namespace

SupplyReadings SupplyMemory::complete(std::optional<SupplyReadings> readings, std::chrono::milliseconds now)
{
    SupplyReadings complete = readings ? std::move(*readings) : lastReadings();
    std::map<std::string, Known> known;
    for (SupplyReading& reading : complete) {
        const auto before = m_known.find(reading.name);
        const Known* const last = before == m_known.end() ? nullptr : &before->second;
        if (last && reading.failed.all())
            // Not even its type could be read.
            reading.kind = last->reading.kind;
        if (last && reading.failed.any())
            standIn(reading, *last, now);
        known.emplace(reading.name, remembered(reading, last, now));
    }
    m_known = std::move(known);
    return complete;
}

void SupplyMemory::confirm(std::chrono::milliseconds now)
{
    for (auto& [name, known] : m_known)
        known.readAt.fill(now);
}

/// Every supply with every attribute failed.
SupplyReadings SupplyMemory::lastReadings() const
{
    SupplyReadings readings;
    for (const auto& [name, known] : m_known)
        readings.push_back({name, known.reading.kind, {}, AttributeSet().set()});
    return readings;
}

void SupplyMemory::standIn(SupplyReading& reading, const Known& known, std::chrono::milliseconds now)
{
    for (std::size_t index = 0; index < attributeCount; ++index) {
        const auto attribute = static_cast<Attribute>(index);
        const std::optional<std::string_view> last = known.reading.attributes.text(attribute);
        if (reading.failed.test(index) && last && now - known.readAt[index] < longestStandIn)
            reading.attributes.set(attribute, *last);
    }
}

SupplyMemory::Known SupplyMemory::remembered(const SupplyReading& reading, const Known* before,
                                             std::chrono::milliseconds now)
{
    Known known{reading, {}};
    for (std::size_t index = 0; index < attributeCount; ++index)
        // A value that stands in keeps its age.
        known.readAt[index] = before && reading.failed.test(index) ? before->readAt[index] : now;
    return known;
}

} // namespace quindle
