#include "battery/BatteryFigures.h"

#include <cmath>

namespace quindle {

double percentage(qint64 part, qint64 whole)
{
    // Divided first: records hold these very doubles, and multiplying first would give others (29 of 100).
    return static_cast<double>(part) / static_cast<double>(whole) * 100.0;
}

double wattThroughput(qint64 voltage, qint64 amperage)
{
    const double amperes = static_cast<double>(amperage) / 1000.0;
    // The sign is that of the current; the caption says which way it flows ("Charging with").
    return std::fabs(static_cast<double>(voltage) * amperes / 1000.0);
}

} // namespace quindle
