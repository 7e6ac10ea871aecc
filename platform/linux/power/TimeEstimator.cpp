#include "platform/linux/power/TimeEstimator.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr milliseconds sampleInterval = 1s;

/// A current just after a plug or unplug is not the one that stays. Nobody waits longer than 10 s for a time.
constexpr milliseconds settling = 3s;
constexpr milliseconds shortestWatch = 5s;

/// Charges move in steps, often of a whole percent, so their change shows only over a longer time.
constexpr milliseconds shortestWatchOfCharges = 20s;
constexpr milliseconds chargeWindow = 10min;

constexpr milliseconds longestPause = 150s;

std::optional<int> minutesFor(std::optional<double> charge, std::optional<double> current)
{
    // As with a driver's own times: beyond that the current is too small to mean anything.
    constexpr double tenDays = 10.0 * 24 * 60;
    // A charge that rose while the battery discharges gives a current below 0, and no time.
    if (!charge || !current || *charge < 0 || !(*current > 0))
        return std::nullopt;
    const double minutes = *charge / *current * 60;
    if (!(minutes < tenDays))
        return std::nullopt;
    return static_cast<int>(std::lround(minutes));
}

} // namespace

void TimeEstimator::setState(bool isPlugged, Direction direction)
{
    if (isPlugged == m_memory.isPlugged && direction == m_memory.direction)
        return;
    m_memory.isPlugged = isPlugged;
    m_memory.direction = direction;
    m_memory.samples.clear();
}

bool TimeEstimator::wantsSample(milliseconds now) const
{
    return m_memory.samples.empty() || now - m_memory.samples.back().time >= sampleInterval;
}

void TimeEstimator::addSample(const Sample& sample)
{
    while (!m_memory.samples.empty() && sample.time - m_memory.samples.front().time > chargeWindow)
        m_memory.samples.pop_front();
    // No rest is longer than a minute, so the computer has slept, and hardly used anything.
    if (!m_memory.samples.empty() && sample.time - m_memory.samples.back().time > longestPause)
        m_memory.samples.clear();
    m_memory.samples.push_back(sample);
}

std::optional<int> TimeEstimator::minutesUntilEmpty() const
{
    if (m_memory.direction != Direction::Discharging || m_memory.samples.empty())
        return std::nullopt;
    return minutesFor(m_memory.samples.back().charge, averageCurrent());
}

std::optional<int> TimeEstimator::minutesUntilFull() const
{
    if (m_memory.direction != Direction::Charging || m_memory.samples.empty())
        return std::nullopt;
    const Sample& last = m_memory.samples.back();
    if (!last.charge || !last.fullCharge)
        return std::nullopt;
    return minutesFor(*last.fullCharge - *last.charge, averageCurrent());
}

std::optional<milliseconds> TimeEstimator::firstEstimateAt() const
{
    if (m_memory.direction == Direction::Idle || m_memory.samples.empty())
        return std::nullopt;
    const milliseconds end = m_memory.samples.back().time;
    const Currents all = currentsFrom(end - currentWindow);
    if (!(all.sum > 0) || end - all.first >= shortestWatch)
        return std::nullopt;
    return all.first + shortestWatch;
}

TimeEstimator::Currents TimeEstimator::currentsFrom(milliseconds begin) const
{
    Currents currents;
    for (auto sample = m_memory.samples.rbegin(); sample != m_memory.samples.rend() && sample->time >= begin;
         ++sample) {
        if (!sample->current)
            continue;
        currents.sum += std::abs(*sample->current);
        ++currents.count;
        // Only as far back as there are samples: one after a gap has not watched for a minute.
        currents.first = sample->time;
    }
    return currents;
}

std::optional<double> TimeEstimator::averageCurrent() const
{
    const milliseconds end = m_memory.samples.back().time;
    const Currents all = currentsFrom(end - currentWindow);
    // Some drivers give neither current nor power (laptop-discharging-without-current).
    if (all.count == 0)
        return currentFromCharges();
    if (end - all.first < shortestWatch)
        return std::nullopt;
    const Currents settled =
        currentsFrom(std::max(end - currentWindow, m_memory.samples.front().time + settling));
    const Currents& used = settled.count > 0 ? settled : all;
    return used.sum / used.count;
}

std::optional<double> TimeEstimator::currentFromCharges() const
{
    const Sample& first = m_memory.samples.front();
    const Sample& last = m_memory.samples.back();
    const milliseconds watched = last.time - first.time;
    if (!first.charge || !last.charge || watched < shortestWatchOfCharges)
        return std::nullopt;
    const double gained = *last.charge - *first.charge;
    const double hours = std::chrono::duration<double, std::ratio<3600>>(watched).count();
    return (m_memory.direction == Direction::Charging ? gained : -gained) / hours;
}

} // namespace quindle
