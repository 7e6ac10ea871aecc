#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include <QByteArray>

#include "samples/Sample.h"

namespace quindle {

/// What is to be done with a sample that follows another one.
enum class SampleFate {
    Ignored, ///< nothing has changed, or this minute has its sample
    Added,
    Replaces ///< the last one: the battery's state has changed within its minute
};

/// At most one sample for each minute of the clock, and only when something has changed since the last one:
/// the state, the charge by 0.1 points, whether the power is known, or the power by half a watt and a tenth
/// of its value (meters fluctuate). A moment before the last one's (a clock that was set back) is another
/// minute.
SampleFate sampleFate(const Sample& last, const Sample& next);

/// Samples on their way to the program that stores them. It has no clock: each sample has its moment.
class SampleBuffer
{
public:
    /// One a minute for a day: 58 kB. The oldest are dropped when more cannot be handed over.
    static constexpr std::size_t most = 1440;

    /// Takes a sample as `sampleFate` says, compared with the last one even if that was handed over. The
    /// first one is always taken.
    void add(const Sample& sample);

    bool isEmpty() const { return m_samples.empty(); }
    std::size_t size() const { return m_samples.size(); }

    /// All of them, oldest first, a line each (see Sample.h).
    QByteArray lines() const;

    /// They have been handed over, or are not wanted.
    void clear() { m_samples.clear(); }

private:
    std::deque<Sample> m_samples;
    std::optional<Sample> m_last; ///< also after it has been handed over
};

} // namespace quindle
