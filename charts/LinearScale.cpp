#include "charts/LinearScale.h"

namespace quindle {

LinearScale::LinearScale(AxisSpan values, AxisSpan pixels)
    : m_values(values)
    , m_pixels(pixels)
{
}

double LinearScale::pixel(double value) const
{
    // All values are the same: it lies in the middle.
    const double share = m_values.length() == 0 ? 0.5 : (value - m_values.from) / m_values.length();
    return m_pixels.from + share * m_pixels.length();
}

double LinearScale::value(double pixel) const
{
    const double share = m_pixels.length() == 0 ? 0 : (pixel - m_pixels.from) / m_pixels.length();
    return m_values.from + share * m_values.length();
}

} // namespace quindle
