#include "platform/linux/pictures/NumberPlace.h"

#include <algorithm>
#include <array>

namespace quindle {

namespace {

constexpr double side = 22.0;
constexpr double margin = 1.0;
constexpr double room = side - 2 * margin;
constexpr QSizeF boltSize(7.0, 7.0);
constexpr double boltGap = 0.5;

// As parts of its width and height: broader than that of the icons, since it has a third of their height.
constexpr std::array<QPointF, 6> boltCorners{QPointF(0.68, 0.0), QPointF(0.0, 0.66), QPointF(0.45, 0.66),
                                             QPointF(0.32, 1.0), QPointF(1.0, 0.34), QPointF(0.55, 0.34)};

QPointF inBox(QPointF part, const QRectF& box)
{
    return {box.x() + part.x() * box.width(), box.y() + part.y() * box.height()};
}

/// By the edges that a line to the right of the point crosses.
bool isInBolt(QPointF point)
{
    bool isInside = false;
    QPointF from = boltCorners.back();
    for (const QPointF to : boltCorners) {
        const bool crosses = (from.y() > point.y()) != (to.y() > point.y());
        if (crosses &&
            point.x() < from.x() + (to.x() - from.x()) * (point.y() - from.y()) / (to.y() - from.y()))
            isInside = !isInside;
        from = to;
    }
    return isInside;
}

} // namespace

NumberPlace numberPlace(QSizeF ink, double pairWidth, bool hasBolt)
{
    const double below = hasBolt ? boltGap + boltSize.height() : 0.0;
    const double width = std::max(1.0, ink.width());
    const double height = std::max(1.0, ink.height());
    const double scale = std::min(room / std::max(1.0, std::min(width, pairWidth)), (room - below) / height);
    const QSizeF size(std::min(room, width * scale), height * scale);
    const QPointF corner((side - size.width()) / 2, (side - size.height() - below) / 2);
    NumberPlace place{QRectF(corner, size), {}};
    if (hasBolt)
        place.bolt =
            QRectF(QPointF((side - boltSize.width()) / 2, place.number.bottom() + boltGap), boltSize);
    return place;
}

std::vector<OutlineStep> boltOutline(const QRectF& box)
{
    std::vector<OutlineStep> steps;
    for (const QPointF corner : boltCorners)
        steps.push_back({steps.empty() ? 'M' : 'L', {inBox(corner, box)}});
    steps.push_back({'Z', {}});
    return steps;
}

Mask boltMask(int width, int height)
{
    constexpr int places = 8; // along a pixel's side
    Mask mask = blankMask(width, height);
    auto coverage = mask.coverage.begin();
    for (int y = 0; y < mask.height; ++y) {
        for (int x = 0; x < mask.width; ++x) {
            int inside = 0;
            for (int i = 0; i < places * places; ++i) {
                const QPointF point(x + (i % places + 0.5) / places, y + (i / places + 0.5) / places);
                inside += isInBolt({point.x() / width, point.y() / height}) ? 1 : 0;
            }
            *coverage++ = static_cast<std::uint8_t>(inside * 255 / (places * places));
        }
    }
    return mask;
}

} // namespace quindle
