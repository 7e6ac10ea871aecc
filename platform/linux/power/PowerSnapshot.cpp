#include "platform/linux/power/PowerSnapshot.h"

namespace quindle {

namespace {

static_assert(attributeCount <= 64, "the attributes that are known are kept in 64 bits");

std::uint64_t bitOf(Attribute attribute)
{
    return std::uint64_t{1} << static_cast<unsigned>(attribute);
}

std::optional<std::string_view> viewOf(const char* bytes, ssize_t result)
{
    if (result < 0)
        return std::nullopt;
    return std::string_view(bytes, static_cast<std::size_t>(result));
}

} // namespace

std::optional<double> SupplySnapshot::number(Attribute attribute) const
{
    double& number = m_numbers[static_cast<std::size_t>(attribute)];
    if ((m_isKnown & bitOf(attribute)) == 0) {
        m_isKnown |= bitOf(attribute);
        std::array<char, 64> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
        const ssize_t size = m_directory->read(*m_supply, attribute, buffer.data(), buffer.size());
        const std::optional<std::string_view> text = viewOf(buffer.data(), size);
        const std::optional<double> parsed = text ? numberFromText(*text) : std::nullopt;
        if (parsed) {
            m_isNumber |= bitOf(attribute);
            number = *parsed;
        }
    }
    return (m_isNumber & bitOf(attribute)) != 0 ? std::optional(number) : std::nullopt;
}

std::optional<std::string_view> SupplySnapshot::text(Attribute attribute) const
{
    if (attribute != Attribute::Status)
        return viewOf(m_text.data(), m_directory->read(*m_supply, attribute, m_text.data(), m_text.size()));
    if ((m_isKnown & bitOf(attribute)) == 0) {
        m_isKnown |= bitOf(attribute);
        m_statusSize = m_directory->read(*m_supply, attribute, m_status.data(), m_status.size());
    }
    return viewOf(m_status.data(), m_statusSize);
}

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the room for snapshots is raw memory
PowerSnapshot::PowerSnapshot(SupplyDirectory& directory)
{
    const auto& supplies = directory.supplies();
    m_snapshots.reserve(supplies.size()); // the lists below point into it
    for (const std::unique_ptr<Supply>& supply : supplies) {
        if (supply->kind() == SupplyKind::Other)
            continue;
        const SupplySnapshot& snapshot = m_snapshots.emplace_back(directory, *supply);
        if (supply->kind() == SupplyKind::External)
            m_externals.append(&snapshot);
        else if (supply->isPresent())
            (supply->kind() == SupplyKind::Battery ? m_batteries : m_uninterruptibles).append(&snapshot);
    }
}

SystemPower PowerSnapshot::power() const
{
    return {{m_batteries.data(), static_cast<std::size_t>(m_batteries.size())},
            {m_externals.data(), static_cast<std::size_t>(m_externals.size())}};
}

const SupplyAttributes& PowerSnapshot::source(qsizetype index) const
{
    return index < m_batteries.size() ? *m_batteries[index] : *m_uninterruptibles[index - m_batteries.size()];
}

} // namespace quindle
