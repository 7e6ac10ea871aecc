#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <QString>

namespace quindle {

/// The attributes of a power supply that this program reads.
enum class Attribute : unsigned char {
    Type,
    Scope,
    Present,
    Online,
    Status,
    Capacity,
    CapacityLevel,
    ChargeNow,
    ChargeFull,
    ChargeFullDesign,
    EnergyNow,
    EnergyFull,
    EnergyFullDesign,
    VoltageNow,
    VoltageMinDesign,
    VoltageMax,
    CurrentAvg,
    CurrentNow,
    CurrentMax,
    PowerNow,
    CycleCount,
    Temp,
    TimeToEmptyAvg,
    TimeToEmptyNow,
    TimeToFullAvg,
    TimeToFullNow,
    ManufactureYear,
    ManufactureMonth,
    ManufactureDay,
    Manufacturer,
    ModelName,
    SerialNumber,
    Health,
    UsbType,
    ChargeControlEndThreshold,
    ChargeTypes,
};

inline constexpr std::size_t attributeCount = static_cast<std::size_t>(Attribute::ChargeTypes) + 1;

/// Some of the attributes, by their number.
using AttributeSet = std::bitset<attributeCount>;

constexpr std::size_t indexOf(Attribute attribute)
{
    return static_cast<std::size_t>(attribute);
}

/// The attribute's file name. NUL-terminated.
const char* attributeName(Attribute attribute);

/// The attributes of one supply as they were when it was read. Texts are what the driver wrote, blanks and
/// control characters included.
class SupplyAttributes
{
public:
    /// What the driver wrote; nothing for an attribute that the supply does not have. Valid until an
    /// attribute is set.
    std::optional<std::string_view> text(Attribute attribute) const;

    /// The whole number it wrote; nothing when it is missing or not a number.
    std::optional<double> number(Attribute attribute) const;

    void set(Attribute attribute, std::string_view text);

    /// Whether all of them are the same, and were set in the same order.
    bool operator==(const SupplyAttributes&) const = default;

private:
    struct Place
    {
        bool isKnown = false;
        std::uint32_t begin = 0;
        std::uint32_t size = 0;

        bool operator==(const Place&) const = default;
    };

    std::string m_texts; ///< all of them, one after the other
    std::array<Place, attributeCount> m_places;
};

/// The attributes in the text of a supply's file "uevent", a line "POWER_SUPPLY_NAME=BAT0" for each. Nothing
/// for a text that the kernel did not finish: one property that cannot be read leaves the whole file empty.
std::optional<SupplyAttributes> attributesFromUevent(std::string_view text);

/// The whole decimal number in `text`, which blanks and a line feed may surround; nothing when it holds
/// anything else or does not fit 64 bits.
std::optional<double> numberFromText(std::string_view text);

/// `text` without blanks and control characters at its ends.
std::string_view trimmed(std::string_view text);

/// A text that a person can read: unprintable characters and bytes that are not UTF-8 taken out, then blanks
/// at the ends. Nothing when nothing is left.
std::optional<QString> readableText(std::string_view text);

} // namespace quindle
