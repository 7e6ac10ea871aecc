#include "platform/linux/power/SupplyAttributes.h"

#include <algorithm>
#include <charconv>

#include <QList>

namespace quindle {

namespace {

constexpr std::array<const char*, attributeCount> attributeNames = {
    "type",
    "scope",
    "present",
    "online",
    "status",
    "capacity",
    "charge_now",
    "charge_full",
    "charge_full_design",
    "energy_now",
    "energy_full",
    "energy_full_design",
    "voltage_now",
    "voltage_min_design",
    "voltage_max",
    "current_avg",
    "current_now",
    "current_max",
    "power_now",
    "cycle_count",
    "temp",
    "time_to_empty_avg",
    "time_to_empty_now",
    "time_to_full_avg",
    "time_to_full_now",
    "manufacture_year",
    "manufacture_month",
    "manufacture_day",
    "manufacturer",
    "model_name",
    "serial_number",
    "health",
    "usb_type",
};

bool isBlankOrControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte <= ' ' || byte == 0x7f;
}

bool isPrintableAscii(char character)
{
    return character >= ' ' && character <= '~';
}

QString withoutUnprintable(std::string_view text)
{
    const QString decoded = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    QString printable;
    for (const char32_t character : decoded.toUcs4()) {
        if (QChar::isPrint(character) && character != QChar::ReplacementCharacter)
            printable += QString::fromUcs4(&character, 1);
    }
    return printable;
}

} // namespace

const char* attributeName(Attribute attribute)
{
    return attributeNames[static_cast<std::size_t>(attribute)];
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlankOrControl(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlankOrControl(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<double> numberFromText(std::string_view text)
{
    const std::string_view digits = trimmed(text);
    long long number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return static_cast<double>(number);
}

std::optional<QString> readableText(std::string_view text)
{
    const std::string_view core = trimmed(text);
    QString readable = std::all_of(core.begin(), core.end(), isPrintableAscii)
                           ? QString::fromLatin1(core.data(), static_cast<qsizetype>(core.size()))
                           : withoutUnprintable(core).trimmed();
    if (readable.isEmpty())
        return std::nullopt;
    return readable;
}

} // namespace quindle
