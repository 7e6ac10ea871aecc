#pragma once

#include <vector>

#include <QPoint>
#include <QRect>

namespace quindle {

/// A screen as windows are placed on it: its top left is in the display's own pixels, its size is not.
struct ScaledScreen
{
    QRect geometry;
    double scale = 1; ///< of the display's pixels in one of the program's
};

/// A point of the X11 screen as windows are placed; a point on no screen as it is.
QPoint pointerPlace(const QPoint& nativePoint, const std::vector<ScaledScreen>& screens);

/// The same on the screens of this process.
QPoint pointerPlace(const QPoint& nativePoint);

} // namespace quindle
