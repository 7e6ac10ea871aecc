#pragma once

#include <QtGlobal>

namespace quindle {

// Spans of time in seconds, as samples have them.
inline constexpr qint64 minute = 60;
inline constexpr qint64 hour = 60 * minute;
inline constexpr qint64 day = 24 * hour;

} // namespace quindle
