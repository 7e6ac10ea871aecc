#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// The forms in which bars read their lines.
enum class BarFormat { Text, Json, I3bar, Waybar };

/// The format of that name ("text", "json", "i3bar", "waybar"); nothing for another name.
std::optional<BarFormat> barFormatNamed(const QString& name);

} // namespace quindle
