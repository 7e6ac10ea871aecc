#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

namespace {

using Direction = TimeEstimator::Direction;

Direction directionOf(const SystemPower& power)
{
    if (anyCharges(power.batteries).value_or(false))
        return Direction::Charging;
    return anyDischarges(power.batteries) ? Direction::Discharging : Direction::Idle;
}

/// Which of the three times is the remaining one now.
std::optional<BatteryTime> remainingTime(const SystemPower& power)
{
    if (directionOf(power) == Direction::Charging)
        return BatteryTime::AverageToFull;
    return isExternallyPowered(power) ? std::nullopt : std::optional(BatteryTime::AverageToEmpty);
}

std::optional<int> firstPlausible(const SupplyAttributes& battery, Attribute first, Attribute second)
{
    const std::optional<int> minutes = plausibleMinutes(battery, first);
    return minutes ? minutes : plausibleMinutes(battery, second);
}

/// What the driver says. It goes on giving its last time to empty while it charges, and the reverse; and the
/// times of several batteries, which are used one after the other, do not add up to one.
std::optional<int> driversMinutes(BatteryTime time, const SystemPower& power)
{
    if (power.batteries.size() != 1)
        return std::nullopt;
    const SupplyAttributes& battery = *power.batteries.front();
    const Direction direction = directionOf(power);
    if (time == BatteryTime::AverageToFull) {
        return direction == Direction::Discharging
                   ? std::nullopt
                   : firstPlausible(battery, Attribute::TimeToFullAvg, Attribute::TimeToFullNow);
    }
    if (direction == Direction::Charging)
        return std::nullopt;
    return time == BatteryTime::InstantToEmpty
               ? firstPlausible(battery, Attribute::TimeToEmptyNow, Attribute::TimeToEmptyAvg)
               : firstPlausible(battery, Attribute::TimeToEmptyAvg, Attribute::TimeToEmptyNow);
}

} // namespace

BatteryTimes::BatteryTimes(MonotonicClock now)
    : m_now(std::move(now))
{
}

std::optional<int> BatteryTimes::minutes(BatteryTime time, const SystemPower& power)
{
    if (time == BatteryTime::Remaining) {
        const std::optional<BatteryTime> remaining = remainingTime(power);
        return remaining ? minutes(*remaining, power) : std::nullopt;
    }
    const std::optional<int> told = driversMinutes(time, power);
    return told ? told : estimate(time, power);
}

void BatteryTimes::notePower(const SystemPower& power)
{
    m_estimator.setState(isExternallyPowered(power), directionOf(power));
}

std::optional<int> BatteryTimes::estimate(BatteryTime time, const SystemPower& power)
{
    notePower(power);
    if (m_estimator.wantsSample(m_now()))
        sample(power);
    return time == BatteryTime::AverageToFull ? m_estimator.minutesUntilFull()
                                              : m_estimator.minutesUntilEmpty();
}

void BatteryTimes::sample(const SystemPower& power)
{
    const Batteries batteries = power.batteries;
    m_estimator.addSample(
        {m_now(), combinedCharge(batteries), combinedFullCharge(batteries), combinedChargeRate(batteries)});
}

} // namespace quindle
