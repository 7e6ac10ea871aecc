#include "battery/BatteryStateRule.h"

namespace quindle {

namespace {

/// An unknown time would be shown like any other, as "1092:15".
void hideUnknownTime(BatteryStateTexts& texts, bool isUnknown)
{
    if (!isUnknown)
        return;
    texts.remainingString = QStringLiteral("Calculating...");
    texts.timeRemaining = QStringLiteral("");
}

} // namespace

BatteryStateTexts chargedTexts()
{
    return {QStringLiteral("Charged"), QStringLiteral("Battery usage"),
            QStringLiteral("Battery fully charged"), QStringLiteral("")};
}

BatteryStateTexts chargingTexts(const QString& timeToFull, bool isUnknown)
{
    BatteryStateTexts texts{QStringLiteral("Charging..."), QStringLiteral("Charging with"),
                            QStringLiteral("Time until full"), timeToFull};
    hideUnknownTime(texts, isUnknown);
    return texts;
}

BatteryStateTexts dischargingTexts(const QString& timeToEmpty, bool isUnknown)
{
    BatteryStateTexts texts{QStringLiteral("Discharging..."), QStringLiteral("Discharging with"),
                            QStringLiteral("Time until empty"), timeToEmpty};
    hideUnknownTime(texts, isUnknown);
    return texts;
}

} // namespace quindle
