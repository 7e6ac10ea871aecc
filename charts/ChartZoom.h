#pragma once

#include "charts/LinearScale.h"

/// Which part of an axis is seen.
namespace quindle {

/// `wanted`, no shorter than `shortest` and, by being moved, inside of `whole`; `whole` where it is not
/// longer.
AxisSpan keptInside(AxisSpan wanted, AxisSpan whole, double shortest);

/// `seen`, `factor` times as long, with `anchor` at the same place.
AxisSpan zoomed(AxisSpan seen, double anchor, double factor);

/// Moved so far that it has `value` inside, with a tenth of its length beside it.
AxisSpan movedTo(AxisSpan seen, double value);

} // namespace quindle
