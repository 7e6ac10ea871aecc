#pragma once

#include <QFont>

class QWidget;

namespace quindle {

/// The measures of the battery view, all taken from the desktop's font, so that the view grows with it.
struct ViewMetrics
{
    explicit ViewMetrics(const QWidget& widget);

    int width;    ///< of the whole view
    int margin;   ///< around it
    int groupGap; ///< between groups of rows
    int rowGap;   ///< between rows
    int radius;   ///< of rounded corners
    QFont large;  ///< the one big figure
    QFont medium; ///< the sign after it
    QFont small;  ///< what explains a bar, and headings
    QFont heading;
};

} // namespace quindle
