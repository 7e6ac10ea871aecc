#include "menubar/ProgressIndicator.h"

#include <cmath>
#include <numbers>

namespace quindle {

void ProgressIndicator::setContentFilters(const ContentFilters& filters)
{
    // Colours are set at every refresh, and rarely to others; the bar is not drawn again for the same.
    if (filters == m_contentFilters)
        return;
    m_contentFilters = filters;
    if (m_changed)
        m_changed();
}

QColor HueFilter::filtered(const QColor& color) const
{
    float hue = 0;
    float saturation = 0;
    float value = 0;
    float alpha = 0;
    color.getHsvF(&hue, &saturation, &value, &alpha);
    if (!color.isValid() || hue < 0 || !std::isfinite(m_inputAngle))
        return color; // greys have no hue to turn

    const double turns = double(hue) + m_inputAngle / (2 * std::numbers::pi);
    const auto turned = static_cast<float>(turns - std::floor(turns));
    // A turn just below a whole one may round up to it, which a color does not take as a hue.
    return QColor::fromHsvF(turned < 1 ? turned : 0, saturation, value, alpha).convertTo(color.spec());
}

} // namespace quindle
