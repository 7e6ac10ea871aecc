#include "widgets/PopupGeometry.h"

#include <algorithm>

namespace quindle {

namespace {

// Where a length does not fit at all, the start is kept in view, not the end.
int within(int start, int length, int from, int room)
{
    return std::max(from, std::min(start, from + room - length));
}

// Below where it fits, else where there is more room.
QRect aboveOrBelow(const QRect& place, const QRect& keptClear, const QRect& available, int gap)
{
    const int below = keptClear.y() + keptClear.height() + gap;
    const int roomBelow = available.y() + available.height() - below;
    const int roomAbove = keptClear.y() - gap - available.y();
    if (place.height() <= roomBelow || roomBelow >= roomAbove)
        return {place.x(), below, place.width(), std::min(place.height(), roomBelow)};
    const int height = std::min(place.height(), roomAbove);
    return {place.x(), keptClear.y() - gap - height, place.width(), height};
}

} // namespace

QRect popupGeometry(const QPoint& anchor, const QSize& size, const QRect& available, int gap)
{
    const QRect room = available.adjusted(gap, gap, -gap, -gap);
    const QSize fitting = size.boundedTo(room.size());
    // Away from the panel, which is at the nearer edge.
    const bool inLowerHalf = anchor.y() > available.center().y();
    const int x = anchor.x() - fitting.width() / 2;
    const int y = inLowerHalf ? anchor.y() - gap - fitting.height() : anchor.y() + gap;
    const QPoint place(std::clamp(x, room.left(), room.left() + room.width() - fitting.width()),
                       std::clamp(y, room.top(), room.top() + room.height() - fitting.height()));
    return {place, fitting};
}

QRect popoverGeometry(const QRect& anchor, QSize size, const QRect& keptClear, const QRect& available,
                      Qt::LayoutDirection direction, int gap)
{
    const int atRight = anchor.x() + anchor.width() + gap;
    const int atLeft = anchor.x() - gap - size.width();
    const bool fitsAtRight = atRight + size.width() <= available.x() + available.width();
    const bool fitsAtLeft = atLeft >= available.x();
    const bool opensRight =
        direction == Qt::LeftToRight ? fitsAtRight || !fitsAtLeft : fitsAtRight && !fitsAtLeft;
    const int y = anchor.y() + (anchor.height() - size.height()) / 2;
    const QRect place(within(opensRight ? atRight : atLeft, size.width(), available.x(), available.width()),
                      within(y, size.height(), available.y(), available.height()), size.width(),
                      size.height());
    return place.intersects(keptClear) ? aboveOrBelow(place, keptClear, available, gap) : place;
}

} // namespace quindle
