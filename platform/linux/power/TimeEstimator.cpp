#include "platform/linux/power/TimeEstimator.h"

#include <cmath>

namespace quindle {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr milliseconds sampleInterval = 1s;

/// A current just after a plug or unplug is not the one that stays.
constexpr milliseconds shortestWatch = 20s;

/// Charges move in steps, often of a whole percent, so their change shows only over a longer time.
constexpr milliseconds chargeWindow = 10min;

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

std::optional<double> TimeEstimator::averageCurrent() const
{
    const milliseconds end = m_memory.samples.back().time;
    milliseconds watched{};
    double sum = 0;
    int count = 0;
    for (auto sample = m_memory.samples.rbegin();
         sample != m_memory.samples.rend() && end - sample->time <= currentWindow; ++sample) {
        if (!sample->current)
            continue;
        sum += std::abs(*sample->current);
        ++count;
        // Only as far back as there are samples: one after a gap has not watched for a minute.
        watched = end - sample->time;
    }
    // Some drivers give neither current nor power (laptop-discharging-without-current).
    if (count == 0)
        return currentFromCharges();
    return watched >= shortestWatch ? std::optional(sum / count) : std::nullopt;
}

std::optional<double> TimeEstimator::currentFromCharges() const
{
    const Sample& first = m_memory.samples.front();
    const Sample& last = m_memory.samples.back();
    const milliseconds watched = last.time - first.time;
    if (!first.charge || !last.charge || watched < shortestWatch)
        return std::nullopt;
    const double gained = *last.charge - *first.charge;
    const double hours = std::chrono::duration<double, std::ratio<3600>>(watched).count();
    return (m_memory.direction == Direction::Charging ? gained : -gained) / hours;
}

} // namespace quindle
