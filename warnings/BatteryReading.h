#pragma once

#include <optional>

#include <QString>

#include "samples/Sample.h"

namespace quindle {

/// What one refresh found of the battery, as far as warnings need it.
struct BatteryReading
{
    qint64 moment = 0;  ///< seconds since the beginning of 1970, UTC
    double percent = 0; ///< state of charge
    SampleState state = SampleState::Unknown;
    std::optional<int> minutesToEmpty; ///< nothing where it is not known
    std::optional<int> chargeLimit;    ///< the percentage at which the computer stops charging
    QString battery;                   ///< tells one battery from another
};

/// Anything but that counts as plugged in.
inline bool isDischarging(const BatteryReading& reading)
{
    return reading.state == SampleState::Discharging;
}

} // namespace quindle
