#pragma once

#include <QString>

/// What the battery is doing, in the words the interface shows.
namespace quindle {

/// The minutes that stand for "not estimated yet".
inline constexpr qint64 unknownMinutes = 65535;

struct BatteryStateTexts
{
    QString batteryState;
    QString stateText;       ///< the caption of the power figure
    QString remainingString; ///< the caption of the time
    QString timeRemaining;   ///< hours and minutes, or empty
};

BatteryStateTexts chargedTexts();

/// `timeToFull` is the formatted time; it is shown unless the time is not estimated yet.
BatteryStateTexts chargingTexts(const QString& timeToFull, bool isUnknown);

/// The same with the time to empty.
BatteryStateTexts dischargingTexts(const QString& timeToEmpty, bool isUnknown);

} // namespace quindle
