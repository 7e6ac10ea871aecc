#include "inspect/BarState.h"

#include <cmath>

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "menubar/BarColours.h"
#include "menubar/StatusIcon.h"
#include "platform/StatusBar.h"

namespace quindle {

namespace {

QString noBattery()
{
    return QStringLiteral("no-battery");
}

/// From the flags, in the order of the model's tests. The model has no words for an adapter that neither
/// charges nor fills: there they stay as they were.
QString powerState(const QDBattery& battery)
{
    if (battery.isCharging())
        return QStringLiteral("charging");
    if (!battery.isACPowered())
        return QStringLiteral("discharging");
    return battery.isCharged() ? QStringLiteral("full") : QStringLiteral("plugged");
}

QString iconName(const QString& powerState, double stateOfCharge)
{
    // As the tray item does, so that both show one picture.
    return powerState == QStringLiteral("discharging") ? batteryIconName(stateOfCharge)
                                                       : chargingIconName(stateOfCharge);
}

std::optional<int> wholePercent(double percentage)
{
    constexpr double most = 1000; // room for drivers that report a charge above full
    // Written so that NaN is refused as well.
    if (!(percentage >= 0 && percentage <= most))
        return std::nullopt;
    return static_cast<int>(std::lround(percentage));
}

} // namespace

QString chargeClass(double stateOfCharge)
{
    // The colours of the charge bar, so that bars and battery view agree.
    const auto colour = chargeBarColour(stateOfCharge);
    if (!colour)
        return QStringLiteral("unknown");
    switch (*colour) {
    case BarColour::Green:
        return QStringLiteral("good");
    case BarColour::Yellow:
        return QStringLiteral("warning");
    case BarColour::Red:
        break;
    }
    return QStringLiteral("critical");
}

BarState barState(const HelperAppDelegate& delegate, const QString& toolTip)
{
    BarState bar;
    // The tray's own texts, not others made for bars.
    bar.title = delegate.statusItem().title();
    bar.toolTip = toolTip;
    const QDBattery* battery = delegate.myMac().Battery();
    if (!battery) {
        bar.icon = noBatteryIconName();
        bar.state = noBattery();
        bar.colourClass = noBattery();
        return bar;
    }
    const double charge = battery->StateOfCharge();
    bar.state = powerState(*battery);
    bar.icon = iconName(bar.state, charge);
    bar.percentage = wholePercent(charge);
    bar.colourClass = chargeClass(charge);
    return bar;
}

} // namespace quindle
