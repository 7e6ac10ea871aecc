#include "samples/SampleBuffer.h"

#include <algorithm>
#include <cmath>

#include "samples/Sample.h"

namespace quindle {

namespace {

constexpr qint64 secondsOfMinute = 60;
constexpr long long leastCharge = 10; // hundredths of a point
constexpr double leastWatts = 0.5;
constexpr double leastShare = 0.1;

/// As a line writes it, so that 50.2 and 50.3 are a tenth apart.
long long hundredths(double percent)
{
    return std::llround(percent * 100);
}

bool hasPowerChanged(const std::optional<double>& last, const std::optional<double>& next)
{
    if (!last || !next)
        // Becoming known or unknown is a change.
        return last.has_value() != next.has_value();
    return std::abs(*next - *last) >= std::max(leastWatts, std::abs(*last) * leastShare);
}

} // namespace

SampleFate sampleFate(const Sample& last, const Sample& next)
{
    const bool hasOtherState = next.state != last.state;
    // One sample a minute, with the state that it ended in.
    if (next.moment / secondsOfMinute == last.moment / secondsOfMinute)
        return hasOtherState ? SampleFate::Replaces : SampleFate::Ignored;
    const bool hasOtherCharge = std::abs(hundredths(next.charge) - hundredths(last.charge)) >= leastCharge;
    return hasOtherState || hasOtherCharge || hasPowerChanged(last.power, next.power) ? SampleFate::Added
                                                                                      : SampleFate::Ignored;
}

void SampleBuffer::add(const Sample& sample)
{
    const SampleFate fate = m_last ? sampleFate(*m_last, sample) : SampleFate::Added;
    if (fate == SampleFate::Ignored)
        return;
    m_last = sample;
    if (fate == SampleFate::Replaces && !m_samples.empty()) {
        m_samples.back() = sample;
        return;
    }
    if (m_samples.size() == most)
        // What cannot be handed over for that long is dropped from the beginning: the newest counts.
        m_samples.pop_front();
    m_samples.push_back(sample);
}

QByteArray SampleBuffer::lines() const
{
    QByteArray lines;
    for (const Sample& sample : m_samples)
        lines += sampleLine(sample);
    return lines;
}

} // namespace quindle
