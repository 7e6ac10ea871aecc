#include "platform/linux/TimerSchedule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quindle {

namespace {

constexpr double shortestInterval = 0.0001;
constexpr double sharedSlack = 0.25;
constexpr double slackOfInterval = 0.1;

} // namespace

int TimerSchedule::add(double start, double interval, double tolerance)
{
    Entry entry;
    entry.start = start;
    entry.interval = interval >= shortestInterval ? interval : shortestInterval;
    entry.lateness = std::max(tolerance, 0.0) + std::min(sharedSlack, entry.interval * slackOfInterval);
    entry.planned = start + entry.interval;
    entry.fallsInStep = tolerance >= entry.interval;
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
    double limit = std::numeric_limits<double>::infinity();
    for (const auto& [number, entry] : m_entries)
        limit = std::min(limit, entry.planned + entry.lateness);
    double latest = -std::numeric_limits<double>::infinity();
    for (const auto& [number, entry] : m_entries)
        if (entry.planned <= limit)
            latest = std::max(latest, entry.planned);
    return latest;
}

std::vector<int> TimerSchedule::takeDue(double now)
{
    std::vector<std::pair<double, int>> due;
    for (auto& [number, entry] : m_entries) {
        if (entry.planned > now)
            continue;
        due.emplace_back(entry.planned, number);
        if (entry.fallsInStep)
            entry.start = now;
        entry.planned = firstTickAfter(entry, now);
    }
    std::sort(due.begin(), due.end());
    std::vector<int> numbers;
    numbers.reserve(due.size());
    for (const auto& [planned, number] : due)
        numbers.push_back(number);
    return numbers;
}

double TimerSchedule::firstTickAfter(const Entry& entry, double now)
{
    double count = std::floor((now - entry.start) / entry.interval) + 1;
    while (entry.start + count * entry.interval <= now)
        ++count; // the quotient was rounded down
    return entry.start + count * entry.interval;
}

} // namespace quindle
