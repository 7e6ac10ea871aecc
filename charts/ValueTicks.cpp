#include "charts/ValueTicks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quindle {

namespace {

/// The steps 1, 2, 5, 10, 20... numbered from 0; those below 1 have negative numbers.
struct ValueStep
{
    int number;

    int exponent() const { return static_cast<int>(std::floor(number / 3.0)); }

    /// The multiple of the step; for decimal fractions the nearest double.
    double times(double count) const
    {
        constexpr std::array mantissas{1, 2, 5};
        const double units = count * mantissas[static_cast<std::size_t>(number - exponent() * 3)];
        // Adding 0 takes the sign from a zero.
        return (exponent() < 0 ? units / std::pow(10, -exponent()) : units * std::pow(10, exponent())) + 0.0;
    }
};

/// Which multiples of the step lie inside. A rounding error does not cost the ends theirs.
AxisSpan multiplesInside(AxisSpan span, ValueStep step)
{
    constexpr double tolerance = 1e-6;
    const double length = step.times(1);
    return {std::ceil(span.from / length - tolerance), std::floor(span.to / length + tolerance)};
}

double countOf(AxisSpan multiples)
{
    return multiples.length() + 1;
}

bool canBeDivided(AxisSpan span)
{
    // In a narrower span neighbouring ticks would be the same double.
    constexpr double resolution = 1e-11;
    const double farthest = std::max(std::abs(span.from), std::abs(span.to));
    return std::isfinite(span.length()) && span.length() > farthest * resolution;
}

} // namespace

ValueTicks valueTicks(AxisSpan span, int most)
{
    if (!canBeDivided(span))
        return {};
    const double room = std::max(most, 2);
    // One step finer than any that can fit.
    ValueStep step{3 * static_cast<int>(std::floor(std::log10(span.length() / room))) - 1};
    AxisSpan finer = multiplesInside(span, step);
    AxisSpan multiples = finer;
    while (countOf(multiples) > room) {
        finer = multiples;
        multiples = multiplesInside(span, {++step.number});
    }
    double stride = 1;
    if (countOf(multiples) < 2) {
        --step.number;
        multiples = finer;
        stride = multiples.length();
    }
    ValueTicks ticks{{}, std::max(0, -step.exponent())};
    for (double count = multiples.from; count <= multiples.to; count += stride)
        ticks.values.push_back(step.times(count));
    return ticks;
}

} // namespace quindle
