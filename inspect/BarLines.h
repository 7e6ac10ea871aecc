#pragma once

#include <QByteArray>

#include "inspect/BarFormat.h"
#include "inspect/BarState.h"

namespace quindle {

/// What is printed before the first state, with its line ends; empty for most formats.
QByteArray barHeader(BarFormat format);

/// One state as one line, without its line end. States that a format does not tell apart give the same line.
QByteArray barLine(BarFormat format, const BarState& state);

/// What stands between the line end of one state and the next state.
QByteArray barSeparator(BarFormat format);

} // namespace quindle
