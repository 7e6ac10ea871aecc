#pragma once

#include <QRect>

namespace quindle {

/// Where a popover of that size opens beside `anchor`: at its trailing edge (the right one, the left one
/// where writing runs from right to left), at the other where there is no room for it, centred on it in
/// height, and always within `available` (the screen without its panels).
QPoint popoverPosition(const QRect& anchor, QSize size, const QRect& available, Qt::LayoutDirection direction,
                       int gap);

} // namespace quindle
