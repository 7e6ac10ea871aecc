#include "plist/PropertyListDate.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

constexpr qint64 startOf2001 = 978307200000; // milliseconds after the start of 1970

} // namespace

QVariant dateFromSeconds(double seconds, Qt::TimeSpec spec)
{
    if (std::isnan(seconds))
        return {};
    // Milliseconds, some 285,000 years: beyond that a double no longer holds every whole one.
    constexpr double farthest = 9.0e15;
    const double milliseconds = std::clamp(std::round(seconds * 1000.0), -farthest, farthest);
    return QDateTime::fromMSecsSinceEpoch(startOf2001 + static_cast<qint64>(milliseconds), spec);
}

double secondsOfDate(const QDateTime& date)
{
    return static_cast<double>(date.toMSecsSinceEpoch() - startOf2001) / 1000.0;
}

} // namespace quindle
