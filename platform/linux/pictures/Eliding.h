#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// The text if it is at most that wide by `width`; else its longest beginning, in whole characters, that fits
/// with an ellipsis after it; the ellipsis alone where nothing fits.
QString elidedTo(const QString& text, double mostWidth, const std::function<double(const QString&)>& width);

} // namespace quindle
