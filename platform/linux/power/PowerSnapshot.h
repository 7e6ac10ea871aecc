#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include <QVarLengthArray>

#include "platform/linux/power/CombinedBattery.h"
#include "platform/linux/power/SupplyDirectory.h"

namespace quindle {

/// The attributes of a supply, each read when it is first asked for and kept as long as this object: for one
/// answer, so that all its parts see the same figures.
class SupplySnapshot final : public SupplyAttributes
{
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the arrays, see below
    SupplySnapshot(SupplyDirectory& directory, Supply& supply)
        : m_directory(&directory)
        , m_supply(&supply)
    {
    }

    std::optional<double> number(Attribute attribute) const override;
    std::optional<std::string_view> text(Attribute attribute) const override;

private:
    SupplyDirectory* m_directory;
    Supply* m_supply;
    // The arrays stay uninitialised: an object of this class is made for every value that is asked for.
    mutable std::uint64_t m_isKnown = 0;
    mutable std::uint64_t m_isNumber = 0;
    mutable std::array<double, attributeCount> m_numbers;
    mutable std::array<char, 32> m_status;
    mutable ssize_t m_statusSize = 0;
    mutable std::array<char, 512> m_text;
};

/// The system's supplies for one answer.
class PowerSnapshot
{
public:
    explicit PowerSnapshot(SupplyDirectory& directory);

    PowerSnapshot(const PowerSnapshot&) = delete;
    PowerSnapshot& operator=(const PowerSnapshot&) = delete;

    SystemPower power() const;

    /// The batteries that are present, then the uninterruptible supplies.
    qsizetype sourceCount() const { return m_batteries.size() + m_uninterruptibles.size(); }
    bool isBattery(qsizetype index) const { return index < m_batteries.size(); }
    const SupplyAttributes& source(qsizetype index) const;

private:
    // A few supplies need no memory of the heap, where so large a piece is found and given back slowly.
    alignas(SupplySnapshot) std::array<std::byte, 4 * sizeof(SupplySnapshot)> m_room;
    std::pmr::monotonic_buffer_resource m_memory{m_room.data(), m_room.size()};
    std::pmr::vector<SupplySnapshot> m_snapshots{&m_memory};
    QVarLengthArray<const SupplyAttributes*, 4> m_batteries;
    QVarLengthArray<const SupplyAttributes*, 4> m_externals;
    QVarLengthArray<const SupplyAttributes*, 4> m_uninterruptibles;
};

} // namespace quindle
