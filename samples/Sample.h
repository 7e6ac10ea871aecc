#pragma once

#include <optional>

#include <QtGlobal>

namespace quindle {

enum class SampleState { Discharging, Charging, Full, Unknown };

/// What the battery did at one moment, as far as the history of charge and power keeps it.
struct Sample
{
    qint64 moment = 0;           ///< seconds since the beginning of 1970, UTC
    double charge = 0;           ///< state of charge, percent, 0 to 100
    std::optional<double> power; ///< watts, negative while discharging; nothing where it is not known
    SampleState state = SampleState::Unknown;

    bool operator==(const Sample& other) const = default;
};

} // namespace quindle
