#pragma once

#include <functional>

#include <QString>

#include "records/trend/TrendEstimate.h"

namespace quindle {

/// What the trend says in plain words.
struct TrendTexts
{
    QString sentence; ///< "At this pace 80 % around September 2027"
    QString detail;   ///< "4.9 points a year, from 1,044 days and 293 cycles"; may be empty
};

/// `now` in seconds since 1970; `countText` writes a whole number.
TrendTexts trendTexts(const TrendEstimate& trend, qint64 now,
                      const std::function<QString(qint64)>& countText);

/// When something will be, as exactly as the interval allows: a month where the interval is at most a quarter
/// of a year long, a third of a year up to eight months, a year up to two, beyond that the years that it lies
/// between. Thirds of years, and no seasons: spring is not the same time everywhere. Moments in seconds
/// since 1970, with the preposition: "around September 2027", "in mid-2027".
QString roughDateText(qint64 expected, qint64 earliest, qint64 latest);

} // namespace quindle
