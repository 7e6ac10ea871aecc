#pragma once

#include <limits>

namespace quindle {

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace quindle
