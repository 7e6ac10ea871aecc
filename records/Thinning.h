#pragma once

#include <optional>
#include <vector>

#include "records/SampleSchema.h"

/// How the history of samples becomes coarser with age. Moments are seconds since 1970, UTC.
namespace quindle {

inline constexpr qint64 secondsOfHour = 3600;
inline constexpr qint64 secondsOfDay = 24 * secondsOfHour;

/// Samples before this moment, the start of an hour 30 days before `now`, are kept as one value an hour.
qint64 hourlyBefore(qint64 now);

/// Samples before this moment, the start of a day (UTC) 365 days before `now`, are kept as one value a day.
qint64 dailyBefore(qint64 now);

/// The samples, sorted by moment, as they are to be kept at `now`. The value of an hour or day has the moment
/// of its beginning. Charge and power are means over the time that each sample held: until the next one, but
/// at most a quarter of an hour, since a longer silence may be sleep. The state is the one that held longest;
/// the value counts as UPower's if a part of it is. Values that are coarse enough stay as they are, so
/// thinning twice changes nothing.
std::vector<StoredSample> thinned(const std::vector<StoredSample>& samples, qint64 now);

/// Whether the day's work on the history (thinning, the limit of its age) is to be done.
enum class DailyTurn {
    Wait, ///< it was done less than a day ago
    Note, ///< only remember that it was asked for
    Go,
};

/// `last` is when it was remembered last, if ever. After a pause of more than 60 days, or a clock that was
/// set back, it is only remembered: with a clock that is years ahead for an hour, everything would look old
/// and be lost.
DailyTurn dailyTurn(std::optional<qint64> last, qint64 now);

} // namespace quindle
