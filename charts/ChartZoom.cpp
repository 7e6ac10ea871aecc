#include "charts/ChartZoom.h"

#include <algorithm>

namespace quindle {

AxisSpan keptInside(AxisSpan wanted, AxisSpan whole, double shortest)
{
    const double length = std::max(wanted.length(), shortest);
    // Written so that a span that is not a number counts as too long.
    if (!(length < whole.length()))
        return whole;
    const double middle = (wanted.from + wanted.to) / 2;
    const double from = std::clamp(middle - length / 2, whole.from, whole.to - length);
    return {from, from + length};
}

AxisSpan zoomed(AxisSpan seen, double anchor, double factor)
{
    return {anchor - (anchor - seen.from) * factor, anchor + (seen.to - anchor) * factor};
}

AxisSpan movedTo(AxisSpan seen, double value)
{
    // Not at the very edge, where what follows could not be seen.
    const double margin = seen.length() / 10;
    double shift = 0;
    if (value < seen.from)
        shift = value - margin - seen.from;
    else if (value > seen.to)
        shift = value + margin - seen.to;
    return {seen.from + shift, seen.to + shift};
}

} // namespace quindle
