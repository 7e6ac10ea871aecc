#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

namespace {

using Direction = TimeEstimator::Direction;
using Minutes = std::optional<int>;

Direction directionOf(const SystemPower& power)
{
    if (anyCharges(power.batteries).value_or(false))
        return Direction::Charging;
    return anyDischarges(power.batteries) ? Direction::Discharging : Direction::Idle;
}

Minutes firstOf(Minutes first, Minutes second)
{
    return first ? first : second;
}

/// What the driver says. Drivers keep giving the last time to empty while charging, and the reverse; and the
/// times of several batteries, which are used one after the other, do not add up to one.
SystemTimes driversTimes(const SystemPower& power, Direction direction)
{
    SystemTimes times;
    if (power.batteries.size() != 1)
        return times;
    const Battery& battery = power.batteries.front();
    if (direction != Direction::Discharging)
        times.averageToFull = firstOf(battery.averageMinutesToFull, battery.presentMinutesToFull);
    if (direction != Direction::Charging) {
        times.averageToEmpty = firstOf(battery.averageMinutesToEmpty, battery.presentMinutesToEmpty);
        times.presentToEmpty = firstOf(battery.presentMinutesToEmpty, battery.averageMinutesToEmpty);
    }
    return times;
}

} // namespace

SystemTimes BatteryTimes::follow(const SystemPower& power, std::chrono::milliseconds now)
{
    const Direction direction = directionOf(power);
    const bool isPlugged = isExternallyPowered(power);
    // First: a change of state forgets all samples, and the new one must not be among them.
    m_estimator.setState(isPlugged, direction);
    if (m_estimator.wantsSample(now))
        m_estimator.addSample({now, combinedCharge(power.batteries), combinedFullCharge(power.batteries),
                               combinedChargeRate(power.batteries)});
    SystemTimes times = driversTimes(power, direction);
    // The driver's own time comes first: it is there at once, the estimate only after a while.
    times.averageToFull = firstOf(times.averageToFull, m_estimator.minutesUntilFull());
    times.averageToEmpty = firstOf(times.averageToEmpty, m_estimator.minutesUntilEmpty());
    times.presentToEmpty = firstOf(times.presentToEmpty, m_estimator.minutesUntilEmpty());
    if (direction == Direction::Charging)
        times.remaining = times.averageToFull;
    else if (!isPlugged)
        times.remaining = times.averageToEmpty;
    m_firstTimeAt = times.remaining ? std::nullopt : m_estimator.firstEstimateAt();
    return times;
}

std::optional<std::chrono::seconds> BatteryTimes::steadyAfter(const SystemPower& power)
{
    // Nothing is estimated; the pause keeps figures that change now and then from counting as steady.
    if (directionOf(power) == Direction::Idle)
        return std::chrono::seconds(20);
    if (combinedChargeRate(power.batteries))
        return std::chrono::seconds(60); // as far back as the average goes
    return std::nullopt;
}

} // namespace quindle
