#pragma once

#include <optional>
#include <vector>

#include <QtGlobal>

namespace quindle {

/// What another service of this computer recorded of the battery before this program did.
struct PowerHistoryPoint
{
    enum class State {
        Unknown, ///< nothing was measured
        Idle,    ///< neither of the others, such as held at a limit
        Charging,
        Discharging,
        Full,
    };

    qint64 moment = 0; ///< seconds since 1970, UTC
    double value = 0;  ///< percent, or watts without a sign
    State state = State::Unknown;
};

struct RecordedPower
{
    std::vector<PowerHistoryPoint> charge; ///< in any order, as the rates
    std::vector<PowerHistoryPoint> rate;
};

/// Main thread only.
class PowerHistory
{
public:
    virtual ~PowerHistory() = default;

    /// The last seven days. Nothing when no such service runs (none is started for it), when it does not
    /// answer within seconds, and on a computer without a battery or with several, whose histories do not add
    /// up.
    virtual std::optional<RecordedPower> lastWeek() = 0;
};

/// Of a computer on which no service records.
class NoPowerHistory : public PowerHistory
{
public:
    std::optional<RecordedPower> lastWeek() override { return std::nullopt; }
};

} // namespace quindle
