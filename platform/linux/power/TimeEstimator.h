#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <utility>

namespace quindle {

/// Estimates the time until a battery is empty or full from its charge and the average current of the last
/// minute. It starts over whenever the direction of the current or the plug changes, and gives nothing until
/// it has watched for a while. It has no clock; times are those of the samples and only run forward.
class TimeEstimator
{
public:
    /// How far back the current is averaged.
    static constexpr std::chrono::seconds currentWindow{60};

    enum class Direction {
        Idle,
        Charging,
        Discharging,
    };

    struct Sample
    {
        std::chrono::milliseconds time{};
        std::optional<double> charge;     ///< mAh
        std::optional<double> fullCharge; ///< mAh
        std::optional<double>
            current; ///< mAh an hour, of either sign; without it the charge's change stands in
    };

    /// All that it remembers.
    struct Memory
    {
        bool isPlugged = false;
        Direction direction = Direction::Idle;
        std::deque<Sample> samples; ///< in order of time
    };

    const Memory& memory() const { return m_memory; }

    /// Continues from there, as if it had watched itself.
    void setMemory(Memory memory) { m_memory = std::move(memory); }

    /// Sets the present state; a change forgets all samples.
    void setState(bool isPlugged, Direction direction);

    /// Whether the last sample is old enough, 1 s, for another one to add anything.
    bool wantsSample(std::chrono::milliseconds now) const;

    void addSample(const Sample& sample);

    /// Whole minutes from the last sample until empty while discharging, or until full while charging.
    /// Nothing in the other direction, before it is known, and for 10 days or more.
    std::optional<int> minutesUntilEmpty() const;
    std::optional<int> minutesUntilFull() const;

    /// The time from which on one more sample with a current gives the first estimate. Nothing where no
    /// current flows or is known, and once the samples reach back far enough.
    std::optional<std::chrono::milliseconds> firstEstimateAt() const;

private:
    /// The currents of the window, and over which time there were any.
    struct Currents
    {
        double sum = 0;
        int count = 0;
        std::chrono::milliseconds first{};
    };

    Currents currentsFrom(std::chrono::milliseconds begin) const;
    std::optional<double> averageCurrent() const;
    std::optional<double> currentFromCharges() const;

    Memory m_memory;
};

} // namespace quindle
