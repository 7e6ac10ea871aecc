#pragma once

#include <vector>

#include <QLocale>
#include <QString>

#include "charts/LinearScale.h"

namespace quindle {

struct TimeTick
{
    qint64 moment = 0; ///< seconds since the beginning of 1970, UTC
    QString label;

    bool operator==(const TimeTick& other) const = default;
};

/// What an axis of time names inside `moments` (seconds since 1970): whole minutes, hours, days, weeks,
/// months or years of the process's time zone, by the finest step of which at most `most` fit (2 at least),
/// across changes of the clock. A midnight among hours has its date as label, a January among months its
/// year. Where the step gives fewer than two, the outermost two of the finer one. Only years 1 to 9999 have
/// ticks.
std::vector<TimeTick> timeTicks(AxisSpan moments, int most, const QLocale& locale);

} // namespace quindle
