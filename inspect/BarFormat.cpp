#include "inspect/BarFormat.h"

namespace quindle {

namespace {

struct Name
{
    const char* text;
    BarFormat format;
};

constexpr Name names[] = {
    {"text", BarFormat::Text},
    {"json", BarFormat::Json},
    {"i3bar", BarFormat::I3bar},
    {"waybar", BarFormat::Waybar},
};

} // namespace

std::optional<BarFormat> barFormatNamed(const QString& name)
{
    for (const Name& known : names)
        if (name == QLatin1String(known.text))
            return known.format;
    return std::nullopt;
}

} // namespace quindle
