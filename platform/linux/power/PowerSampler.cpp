#include "platform/linux/power/PowerSampler.h"

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

void PowerSampler::take(std::chrono::milliseconds now)
{
    auto sample = std::make_shared<PowerSample>();
void PowerSampler::setLateObserver(std::function<void()> arrived)
{
    m_reader.setLateObserver([this, arrived = std::move(arrived)] {
        expire();
        arrived();
    });
}

    sample->power = systemPowerFrom(m_memory.complete(m_reader.read(looksAgain(now)), now));
    // With each sample, so that no plug or unplug is missed.
    const SystemTimes times = m_times.follow(sample->power, now);
    sample->batteryEntry = registryEntry(sample->power, times);
    sample->sources = sourceDescriptions(sample->power, times);
    m_sample = std::move(sample);
    m_takenAt = now;
    m_isExpired = false;
}

bool PowerSampler::looksAgain(std::chrono::milliseconds now)
{
    if (m_lookedAt && now - *m_lookedAt < lookInterval)
        return false;
    m_lookedAt = now;
    return true;
}

} // namespace quindle
