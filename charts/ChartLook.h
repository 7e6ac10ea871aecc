#pragma once

#include <QColor>
#include <QFont>

#include "charts/ChartContent.h"

class QWidget;

namespace quindle {

/// The font and the few colours of a chart.
struct ChartLook
{
    QFont font;
    QColor background;
    QColor text;
    QColor quiet; ///< what explains
    QColor grid;
    QColor wear;
    QColor charge;
};

/// From the palette of the widget: lines of charge in the desktop's highlight, lines of wear green as the bar
/// of health is, both moved towards the text where they could not be seen on the background.
ChartLook chartLook(const QWidget& widget);

QColor inkColour(const ChartLook& look, ChartInk ink);

} // namespace quindle
