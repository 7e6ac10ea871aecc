#include "view/HueAdjust.h"

#include <cmath>
#include <numbers>

#include "menubar/ProgressIndicator.h"

namespace quindle {

QColor filtered(const QColor& color, const HueFilter& filter)
{
    float hue = 0;
    float saturation = 0;
    float value = 0;
    float alpha = 0;
    color.getHsvF(&hue, &saturation, &value, &alpha);
    if (!color.isValid() || hue < 0 || !std::isfinite(filter.inputAngle()))
        return color; // greys have no hue to turn

    // In whole turns: angles are radians and may go round many times.
    const double turns = double(hue) + filter.inputAngle() / (2 * std::numbers::pi);
    const auto turned = static_cast<float>(turns - std::floor(turns));
    // A turn just below a whole one may round up to it, which a color does not take as a hue.
    return QColor::fromHsvF(turned < 1 ? turned : 0, saturation, value, alpha).convertTo(color.spec());
}

} // namespace quindle
