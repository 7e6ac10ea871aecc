#pragma once

#include <functional>

#include <QString>

namespace quindle {

/// The text where `width` says that it is at most that wide, else its longest beginning, in whole characters,
/// that is so with an ellipsis after it; the ellipsis alone where nothing fits.
QString elidedTo(const QString& text, double mostWidth, const std::function<double(const QString&)>& width);

} // namespace quindle
