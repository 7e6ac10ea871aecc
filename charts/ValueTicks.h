#pragma once

#include <vector>

#include "charts/LinearScale.h"

namespace quindle {

/// The values that an axis names, and how many decimals they need.
struct ValueTicks
{
    std::vector<double> values;
    int decimals = 0;

    bool operator==(const ValueTicks& other) const = default;
};

/// The multiples of 1, 2 or 5 times a power of ten inside `span`: as many as there are up to `most`, which
/// counts as 2 at least, and never fewer than two. Where no such step gives that many, the outermost two of
/// the finer one. None for a span that has no length, is not finite or is too narrow for its distance from 0.
ValueTicks valueTicks(AxisSpan span, int most);

} // namespace quindle
