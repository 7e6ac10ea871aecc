#include "widgets/PopoverGeometry.h"

#include <algorithm>

namespace quindle {

namespace {

// The start and not the end is kept in view where a length does not fit at all.
int within(int start, int length, int from, int room)
{
    return std::max(from, std::min(start, from + room - length));
}

} // namespace

QPoint popoverPosition(const QRect& anchor, QSize size, const QRect& available, Qt::LayoutDirection direction,
                       int gap)
{
    const int atRight = anchor.x() + anchor.width() + gap;
    const int atLeft = anchor.x() - gap - size.width();
    const bool fitsAtRight = atRight + size.width() <= available.x() + available.width();
    const bool fitsAtLeft = atLeft >= available.x();
    const bool opensRight =
        direction == Qt::LeftToRight ? fitsAtRight || !fitsAtLeft : fitsAtRight && !fitsAtLeft;
    const int y = anchor.y() + (anchor.height() - size.height()) / 2;
    return {within(opensRight ? atRight : atLeft, size.width(), available.x(), available.width()),
            within(y, size.height(), available.y(), available.height())};
}

} // namespace quindle
