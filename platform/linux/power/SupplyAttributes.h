#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include <QString>

namespace quindle {

/// The attribute files of a power supply that this program reads.
enum class Attribute : unsigned char {
    Type,
    Scope,
    Present,
    Online,
    Status,
    Capacity,
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
};

inline constexpr std::size_t attributeCount = static_cast<std::size_t>(Attribute::UsbType) + 1;

/// The attribute's file name. NUL-terminated.
const char* attributeName(Attribute attribute);

/// The attributes of one power supply as they stand now. A number that cannot be read, or is none, is
/// missing; a text is what the file holds, blanks and control characters included. A text is valid until the
/// next one of the same supply is asked for.
class SupplyAttributes
{
public:
    virtual ~SupplyAttributes() = default;

    virtual std::optional<double> number(Attribute attribute) const = 0;
    virtual std::optional<std::string_view> text(Attribute attribute) const = 0;
};

/// The whole decimal number in `text`, which blanks and a line feed may surround; nothing when it holds
/// anything else or does not fit 64 bits.
std::optional<double> numberFromText(std::string_view text);

/// `text` without blanks and control characters at its ends.
std::string_view trimmed(std::string_view text);

/// A text that a person can read: unprintable characters and bytes that are no UTF-8 taken out, then blanks
/// at the ends. Nothing when nothing is left.
std::optional<QString> readableText(std::string_view text);

} // namespace quindle
