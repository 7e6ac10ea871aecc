#include "records/FirstWeek.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quindle {

namespace {

using Point = PowerHistoryPoint;
using Points = std::vector<Point>;

bool isEarlier(const Point& left, const Point& right)
{
    return left.moment < right.moment;
}

/// Those that say something, sorted.
Points usable(Points points)
{
    std::erase_if(points, [](const Point& point) {
        return point.state == Point::State::Unknown || !std::isfinite(point.value) || point.value < 0;
    });
    std::stable_sort(points.begin(), points.end(), isEarlier);
    return points;
}

/// Watts with a sign.
double signedPower(const Point& rate)
{
    return rate.state == Point::State::Discharging ? -rate.value : rate.value;
}

std::optional<double> powerAt(const Points& rates, qint64 moment)
{
    constexpr qint64 longestAge = 300; // seconds
    const auto next = std::upper_bound(rates.begin(), rates.end(), Point{.moment = moment}, isEarlier);
    if (next == rates.begin() || moment - std::prev(next)->moment > longestAge)
        return std::nullopt;
    return signedPower(*std::prev(next));
}

SampleState sampleState(Point::State state)
{
    switch (state) {
    case Point::State::Charging:
        return SampleState::Charging;
    case Point::State::Discharging:
        return SampleState::Discharging;
    case Point::State::Full:
        return SampleState::Full;
    case Point::State::Idle:
    case Point::State::Unknown:
        break;
    }
    return SampleState::Unknown;
}

} // namespace

std::vector<Sample> samplesFromHistory(const RecordedPower& recorded, qint64 end)
{
    const Points rates = usable(recorded.rate);
    std::vector<Sample> samples;
    for (const Point& charge : usable(recorded.charge)) {
        // From `end` on there are samples of our own.
        if (charge.moment >= end || charge.value > 100)
            continue;
        samples.push_back({.moment = charge.moment,
                           .charge = charge.value,
                           .power = powerAt(rates, charge.moment),
                           .state = sampleState(charge.state)});
    }
    return samples;
}

StoreOutcome takeOverFirstWeek(SampleStore& store, PowerHistory& history, qint64 now)
{
    const QByteArray isTakenOver = QByteArrayLiteral("first week");
    // Once: what was thinned or removed since then must not come back.
    StoreOutcome looked;
    if (store.note(isTakenOver, &looked))
        return {};
    const auto recorded = history.lastWeek();
    // The service has not answered; the next call asks again.
    if (!recorded)
        return {.fault = {}, .notice = looked.notice, .error = 0};
    // Up to where the own samples begin, which are better.
    const auto samples = samplesFromHistory(*recorded, store.firstMoment().value_or(now));
    const StoreOutcome added = store.append(samples, SampleSource::UPower);
    // The two are not one step: after a crash between them it is done again, which adds nothing.
    StoreOutcome outcome = added.isGood() ? store.setNote(isTakenOver, QByteArray::number(now)) : added;
    if (outcome.notice.isEmpty())
        outcome.notice = looked.notice;
    return outcome;
}

} // namespace quindle
