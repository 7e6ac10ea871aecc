#pragma once

namespace quindle {

/// A stretch of an axis, in values or in pixels; pixels may run backwards.
struct AxisSpan
{
    double from = 0;
    double to = 0;

    double length() const { return to - from; }
    bool contains(double value) const { return value >= from && value <= to; }
    bool operator==(const AxisSpan& other) const = default;
};

/// Where a value lies on an axis, and back. Without a length every value lies in the middle of the pixels,
/// and every pixel is the first value.
class LinearScale
{
public:
    LinearScale(AxisSpan values, AxisSpan pixels);

    double pixel(double value) const;
    double value(double pixel) const;

    const AxisSpan& values() const { return m_values; }
    const AxisSpan& pixels() const { return m_pixels; }

private:
    AxisSpan m_values;
    AxisSpan m_pixels;
};

} // namespace quindle
