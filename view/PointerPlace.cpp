#include "view/PointerPlace.h"

#include <QGuiApplication>
#include <QScreen>

namespace quindle {

QPoint pointerPlace(const QPoint& nativePoint, const std::vector<ScaledScreen>& screens)
{
    for (const auto& [geometry, scale] : screens) {
        // Screens keep their native corner, and are scaled from there.
        const QPoint corner = geometry.topLeft();
        const QPointF within = QPointF(nativePoint - corner) / scale;
        const QPoint place = corner + QPoint(static_cast<int>(within.x()), static_cast<int>(within.y()));
        if (geometry.contains(place))
            return place;
    }
    return nativePoint;
}

QPoint pointerPlace(const QPoint& nativePoint)
{
    std::vector<ScaledScreen> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.push_back({screen->geometry(), screen->devicePixelRatio()});
    return pointerPlace(nativePoint, screens);
}

} // namespace quindle
