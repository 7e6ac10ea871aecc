#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "inspect/BarState.h"

namespace quindle {

/// The forms in which bars read their lines.
enum class BarFormat { Text, Json, I3bar, Waybar };

/// The format of that name ("text", "json", "i3bar", "waybar"); nothing for another name.
std::optional<BarFormat> barFormatNamed(const QString& name);

/// What is printed before the first state, with its line ends; empty for most formats.
QByteArray barHeader(BarFormat format);

/// One state as one line, without its line end. States that a format does not distinguish give the same line.
QByteArray barLine(BarFormat format, const BarState& state);

/// What separates the line end of one state from the next state.
QByteArray barSeparator(BarFormat format);

} // namespace quindle
