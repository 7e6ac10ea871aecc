#include "widgets/PopupGeometry.h"

#include <algorithm>

namespace quindle {

QRect popupGeometry(const QPoint& anchor, const QSize& size, const QRect& available, int gap)
{
    const QRect room = available.adjusted(gap, gap, -gap, -gap);
    const QSize fitting = size.boundedTo(room.size());
    const bool inLowerHalf = anchor.y() > available.center().y();
    const int x = anchor.x() - fitting.width() / 2;
    const int y = inLowerHalf ? anchor.y() - gap - fitting.height() : anchor.y() + gap;
    const QPoint place(std::clamp(x, room.left(), room.left() + room.width() - fitting.width()),
                       std::clamp(y, room.top(), room.top() + room.height() - fitting.height()));
    return {place, fitting};
}

} // namespace quindle
