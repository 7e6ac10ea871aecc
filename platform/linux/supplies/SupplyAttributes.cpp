#include "platform/linux/supplies/SupplyAttributes.h"

#include <algorithm>
#include <charconv>

#include <QList>

namespace quindle {

namespace {

/// In the order of the enumeration. Literals, so each ends in NUL.
constexpr std::array<std::string_view, attributeCount> attributeNames = {
    "type",
    "scope",
    "present",
    "online",
    "status",
    "capacity",
    "capacity_level",
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
    "charge_control_end_threshold",
    "charge_types",
};

bool isBlankOrControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    // NUL too: device trees end their texts with it.
    return byte <= ' ' || byte == 0x7f;
}

bool isPrintableAscii(char character)
{
    return character >= ' ' && character <= '~';
}

/// Texts of firmware may run on into left-over bytes of a buffer; where they are printable they stay
/// (macbook-retina13-garbled-strings).
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

char upperCase(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

bool isInUpperCase(std::string_view upper, std::string_view name)
{
    return std::equal(upper.begin(), upper.end(), name.begin(), name.end(),
                      [](char left, char right) { return left == upperCase(right); });
}

/// The attribute that a uevent names in capitals.
std::optional<Attribute> attributeInCapitals(std::string_view name)
{
    const auto found = std::find_if(attributeNames.begin(), attributeNames.end(),
                                    [&](std::string_view each) { return isInUpperCase(name, each); });
    if (found == attributeNames.end())
        return std::nullopt;
    return static_cast<Attribute>(found - attributeNames.begin());
}

} // namespace

const char* attributeName(Attribute attribute)
{
    return attributeNames[indexOf(attribute)].data();
}

std::optional<std::string_view> SupplyAttributes::text(Attribute attribute) const
{
    const Place& place = m_places[indexOf(attribute)];
    if (!place.isKnown)
        return std::nullopt;
    return std::string_view(m_texts).substr(place.begin, place.size);
}

std::optional<double> SupplyAttributes::number(Attribute attribute) const
{
    const std::optional<std::string_view> written = text(attribute);
    return written ? numberFromText(*written) : std::nullopt;
}

void SupplyAttributes::set(Attribute attribute, std::string_view text)
{
    m_places[indexOf(attribute)] = {true, static_cast<std::uint32_t>(m_texts.size()),
                                    static_cast<std::uint32_t>(text.size())};
    m_texts.append(text);
}

std::optional<SupplyAttributes> attributesFromUevent(std::string_view text)
{
    constexpr std::string_view prefix = "POWER_SUPPLY_";
    SupplyAttributes attributes;
    bool hasName = false; // the kernel begins with it
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t sign = line.find('=');
        if (!line.starts_with(prefix) || sign == std::string_view::npos)
            continue;
        const std::string_view name = line.substr(prefix.size(), sign - prefix.size());
        hasName = hasName || name == "NAME";
        if (const std::optional<Attribute> attribute = attributeInCapitals(name))
            attributes.set(*attribute, line.substr(sign + 1));
    }
    return hasName ? std::optional(std::move(attributes)) : std::nullopt;
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
    // Unlike strtol it knows no locale and skips nothing: a text that only begins with a number is none.
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
