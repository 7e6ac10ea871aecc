#pragma once

#include <QRect>

namespace quindle {

/// Where a popup of that size opens for a click at `anchor`: beside the pointer, below it in the upper half
/// of the screen and above it in the lower, never over a panel (`available` is the screen without its
/// panels), with `gap` to the edges. It is cut to the room there is.
QRect popupGeometry(const QPoint& anchor, const QSize& size, const QRect& available, int gap);

/// Where a popover of that size opens beside `anchor`: at its trailing edge (the right one, the left one
/// where writing runs from right to left), at the other where there is no room for it, centred on it in
/// height, and always within `available` (the screen without its panels). It covers nothing of `keptClear`,
/// and is cut where there is not room enough for its height above or below that.
QRect popoverGeometry(const QRect& anchor, QSize size, const QRect& keptClear, const QRect& available,
                      Qt::LayoutDirection direction, int gap);

} // namespace quindle
