#include "records/Thinning.h"

#include <algorithm>
#include <array>
#include <span>

namespace quindle {

namespace {

using Bucket = std::span<const StoredSample>;

constexpr qint64 longestHold = secondsOfHour / 4;

/// Rounds down, for moments before 1970 as well.
qint64 beginningOf(qint64 moment, qint64 width)
{
    const qint64 rest = moment % width;
    return moment - (rest < 0 ? rest + width : rest);
}

/// How wide the values of a moment are; 0 for samples as they were taken.
qint64 widthAt(qint64 moment, qint64 now)
{
    if (moment < dailyBefore(now))
        return secondsOfDay;
    return moment < hourlyBefore(now) ? secondsOfHour : 0;
}

/// For how many seconds a sample counts; `end` is when the next one came.
qint64 holdOf(const StoredSample& stored, qint64 end)
{
    if (stored.span > 0)
        return stored.span;
    return std::clamp<qint64>(end - stored.sample.moment, 1, longestHold);
}

/// What a bucket adds up to.
struct Sums
{
    double charge = 0; ///< times seconds, as power
    double power = 0;
    qint64 seconds = 0;
    qint64 poweredSeconds = 0;
    std::array<qint64, 4> states{}; ///< seconds, by state

    void add(const Sample& sample, qint64 hold)
    {
        charge += sample.charge * static_cast<double>(hold);
        seconds += hold;
        states.at(static_cast<std::size_t>(sample.state)) += hold;
        // The mean of those that know it: the others would pull it towards 0.
        if (!sample.power)
            return;
        power += *sample.power * static_cast<double>(hold);
        poweredSeconds += hold;
    }

    Sample mean(qint64 moment) const
    {
        const auto* longest = std::max_element(states.begin(), states.end());
        Sample sample{.moment = moment,
                      .charge = charge / static_cast<double>(seconds),
                      .power = std::nullopt,
                      .state = static_cast<SampleState>(longest - states.begin())};
        if (poweredSeconds > 0)
            sample.power = power / static_cast<double>(poweredSeconds);
        return sample;
    }
};

/// `width` is more than 0.
StoredSample valueOf(Bucket bucket, qint64 width)
{
    // It is such a value already; rounding must not change it each time.
    if (bucket.size() == 1 && bucket.front().span == width)
        return bucket.front();
    const qint64 beginning = beginningOf(bucket.front().sample.moment, width);
    Sums sums;
    for (std::size_t index = 0; index < bucket.size(); ++index) {
        const bool isLast = index + 1 == bucket.size();
        const qint64 end = isLast ? beginning + width : bucket[index + 1].sample.moment;
        sums.add(bucket[index].sample, holdOf(bucket[index], end));
    }
    const bool isTakenOver = std::any_of(bucket.begin(), bucket.end(), [](const StoredSample& stored) {
        return stored.source == SampleSource::UPower;
    });
    return {sums.mean(beginning), isTakenOver ? SampleSource::UPower : SampleSource::Helper, width};
}

} // namespace

qint64 hourlyBefore(qint64 now)
{
    return beginningOf(now - 30 * secondsOfDay, secondsOfHour);
}

qint64 dailyBefore(qint64 now)
{
    return beginningOf(now - 365 * secondsOfDay, secondsOfDay);
}

std::vector<StoredSample> thinned(const std::vector<StoredSample>& samples, qint64 now)
{
    std::vector<StoredSample> kept;
    for (auto first = samples.begin(); first != samples.end();) {
        const qint64 width = widthAt(first->sample.moment, now);
        if (width == 0) {
            // They are in order of time, so all that follow are newer.
            kept.insert(kept.end(), first, samples.end());
            break;
        }
        const qint64 end = beginningOf(first->sample.moment, width) + width;
        const auto next = std::find_if(
            first, samples.end(), [end](const StoredSample& stored) { return stored.sample.moment >= end; });
        kept.push_back(valueOf({first, next}, width));
        first = next;
    }
    return kept;
}

DailyTurn dailyTurn(std::optional<qint64> last, qint64 now)
{
    constexpr qint64 longestPause = 60 * secondsOfDay;
    // A clock that was in another year must not thin this year's history.
    if (!last || now < *last || now - *last > longestPause)
        return DailyTurn::Note;
    return now - *last < secondsOfDay ? DailyTurn::Wait : DailyTurn::Go;
}

} // namespace quindle
