#include "platform/linux/power/PowerSampler.h"

#include <algorithm>
#include <utility>

#include "platform/linux/power/PowerSourceDescription.h"
#include "platform/linux/power/RegistryValues.h"

namespace quindle {

namespace {

constexpr std::chrono::milliseconds longestService(1000);
// How late a changed charge limit may show: writing it announces nothing, and its file is read at a look
// only.
constexpr std::chrono::milliseconds lookInterval(30'000);

} // namespace

PowerSampler::PowerSampler(std::string folder, ReadFunction read, MonotonicClock now,
                           ReadingPatience patience)
    : m_now(std::move(now))
    , m_reader(std::move(folder), SupplyFolder::Scope::Computer, std::move(read), patience)
{
}

std::shared_ptr<const PowerSample> PowerSampler::sample()
{
    const std::chrono::milliseconds now = m_now();
    if (m_isExpired || now - m_takenAt >= longestService)
        take(now);
    return m_sample;
}

void PowerSampler::lookAgain()
{
    m_lookedAt.reset();
    expire();
}

void PowerSampler::setLateObserver(std::function<void()> arrived)
{
    m_reader.setLateObserver([this, arrived = std::move(arrived)] {
        expire();
        arrived();
    });
}

void PowerSampler::take(std::chrono::milliseconds now)
{
    countStillMoments();
    auto sample = std::make_shared<PowerSample>();
    SupplyReadings readings = m_memory.complete(m_reader.read(looksAgain(now)), now);
    sample->power = systemPowerFrom(readings);
    // With each sample, so that no plug or unplug is missed.
    const SystemTimes times = m_times.follow(sample->power, now);
    sample->batteryEntry = registryEntry(sample->power, times);
    sample->sources = sourceDescriptions(sample->power, times);
    compare(readings, *sample, now);
    m_lastReadings = std::move(readings);
    m_sample = std::move(sample);
    m_takenAt = now;
    m_isExpired = false;
    if (const auto at = m_times.firstTimeAt(); at && m_timeExpected)
        m_timeExpected(*at - now);
}

void PowerSampler::countStillMoments()
{
    if (!m_takeStillMoments)
        return;
    for (const std::chrono::milliseconds moment : m_takeStillMoments())
        if (m_sample && moment > m_takenAt) {
            m_memory.confirm(moment);
            m_times.follow(m_sample->power, moment);
        }
}

void PowerSampler::compare(const SupplyReadings& readings, const PowerSample& sample,
                           std::chrono::milliseconds now)
{
    const bool isWhole = std::all_of(readings.begin(), readings.end(),
                                     [](const SupplyReading& reading) { return reading.failed.none(); });
    if (!isWhole)
        m_stillSince.reset();
    else if (!m_stillSince || readings != m_lastReadings)
        m_stillSince = now;
    m_isAsBefore =
        m_sample && sample.batteryEntry == m_sample->batteryEntry && sample.sources == m_sample->sources;
}

bool PowerSampler::isSteady() const
{
    const auto steadyAfter = m_stillSince ? BatteryTimes::steadyAfter(m_sample->power) : std::nullopt;
    return steadyAfter && m_isAsBefore && m_takenAt - *m_stillSince >= *steadyAfter;
}

bool PowerSampler::looksAgain(std::chrono::milliseconds now)
{
    if (m_lookedAt && now - *m_lookedAt < lookInterval)
        return false;
    m_lookedAt = now;
    return true;
}

} // namespace quindle
