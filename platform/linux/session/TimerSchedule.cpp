#include "platform/linux/session/TimerSchedule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quindle {

namespace {

constexpr double microsecondsInSecond = 1e6;
constexpr double shortestInterval = 0.0001;
constexpr double quickestRefresh = 5;
constexpr double longestInterval = 1e9; // longer than any clock runs, and sums of it do not overflow

} // namespace

int TimerSchedule::add(double start, double interval, double tolerance)
{
    Entry entry;
    entry.start = microseconds(start);
    entry.interval =
        microseconds(interval >= shortestInterval ? std::min(interval, longestInterval) : shortestInterval);
    entry.tolerance = microseconds(tolerance > 0 ? std::min(tolerance, longestInterval) : 0);
    entry.planned = entry.start + entry.interval;
    m_entries.emplace(++m_lastNumber, entry);
    return m_lastNumber;
}

void TimerSchedule::remove(int number)
{
    m_entries.erase(number);
}

std::optional<double> TimerSchedule::nextWakeUp() const
{
    if (m_entries.empty())
        return std::nullopt;
    Microseconds limit = std::numeric_limits<Microseconds>::max();
    for (const auto& [number, entry] : m_entries)
        limit = std::min(limit, entry.planned + (m_isPunctual ? 0 : entry.tolerance));
    Microseconds latest = std::numeric_limits<Microseconds>::min();
    for (const auto& [number, entry] : m_entries)
        if (entry.planned <= limit)
            latest = std::max(latest, entry.planned);
    return static_cast<double>(latest) / microsecondsInSecond;
}

std::vector<double> TimerSchedule::restfulWakeUps(double seconds) const
{
    const bool isQuick =
        std::any_of(m_entries.begin(), m_entries.end(), [](const std::pair<const int, Entry>& entry) {
            return entry.second.interval < microseconds(quickestRefresh);
        });
    std::vector<double> wakeUps;
    if (m_isPunctual || isQuick)
        return wakeUps;
    // On a copy: looking ahead must not take a tick.
    TimerSchedule later = *this;
    for (auto next = later.nextWakeUp(); next && (wakeUps.empty() || *next <= wakeUps.front() + seconds);
         next = later.nextWakeUp()) {
        wakeUps.push_back(*next);
        later.takeDue(*next);
    }
    return wakeUps;
}

std::vector<int> TimerSchedule::takeDue(double now)
{
    const Microseconds present = microseconds(now);
    std::vector<std::pair<Microseconds, int>> due;
    for (const auto& [number, entry] : m_entries)
        if (entry.planned <= present)
            due.emplace_back(entry.planned, number);
    // By planned time, so that the order of ticks does not depend on how late the wake-up is.
    std::sort(due.begin(), due.end());
    std::vector<int> numbers;
    numbers.reserve(due.size());
    for (const auto& [planned, number] : due) {
        Entry& entry = m_entries.at(number);
        // Such a timer may fire at any time, and so falls in step with the others for good.
        if (entry.tolerance >= entry.interval)
            entry.start = due.back().first;
        const Microseconds ticks = (present - entry.start) / entry.interval;
        entry.planned = entry.start + (ticks + 1) * entry.interval;
        numbers.push_back(number);
    }
    return numbers;
}

TimerSchedule::Microseconds TimerSchedule::microseconds(double seconds)
{
    // Whole numbers, so that ticks of 5 and 10 seconds are exactly equal.
    return std::llround(seconds * microsecondsInSecond);
}

} // namespace quindle
