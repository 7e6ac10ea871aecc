#pragma once

#include <QColor>

namespace quindle {

class HueFilter;

/// `color` with its hue turned by the filter's angle; saturation, value and alpha stay, and so does a colour
/// without a hue. An angle that is not a number turns nothing.
QColor filtered(const QColor& color, const HueFilter& filter);

} // namespace quindle
