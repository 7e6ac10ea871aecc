#pragma once

#include "platform/linux/supplies/SupplyReader.h"

namespace quindle {

/// For tests in which nothing hangs: a busy machine makes no difference.
inline constexpr ReadingPatience endlessPatience{std::chrono::minutes(1), std::chrono::minutes(1),
                                                 std::chrono::minutes(1)};

} // namespace quindle
