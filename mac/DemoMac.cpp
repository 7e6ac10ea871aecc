#include "mac/DemoMac.h"

#include "battery/QDBattery.h"
#include "common/DateFromText.h"
#include "mac/QDMac.h"

namespace quindle {

namespace {

QDateTime day(const QString& text)
{
    // The texts below are all days.
    return dateFromText(text).value();
}

} // namespace

QString demoModel()
{
    return QStringLiteral("MacBookAir4,2");
}

void setDemoValues(QDMac& mac)
{
    mac.setProperty("OSXVersion", QStringLiteral("El Capitan"));
    mac.setProperty("Model", demoModel());
    mac.setProperty("Type", QStringLiteral("MacBook Air"));
    mac.setProperty("Name", QStringLiteral("Demo Computer"));
    mac.setProperty("LongModel", QStringLiteral("(13-inch, Late 2013)"));
    // Its date characters M and N are the manufacture date below, week 19 of 2014.
    mac.setProperty("Serial", QStringLiteral("C02MN1TXF5YW"));
    mac.setProperty("ManufactureDate", day(QStringLiteral("2014-05-12")));
}

void setDemoValues(QDBattery& battery)
{
    battery.setProperty("FullChargeCapacity", 4865);
    battery.setProperty("CycleCount", 293);
    battery.setProperty("BatteryHealth", QStringLiteral("Good"));
    battery.setProperty("StateOfCharge", 61.0);
    battery.setProperty("StateOfHealth", 89.0);
    battery.setProperty("Temperature", QStringLiteral("78.5 °F"));
    battery.setProperty("StateText", QStringLiteral("Discharging with"));
    battery.setProperty("WattThroughput", 4.61);
    battery.setProperty("CurrentCapacity", 2967);
    battery.setProperty("ManufactureDate", day(QStringLiteral("2014-04-04")));
    battery.setProperty("TimeRemaining", QStringLiteral("4:41"));
}

} // namespace quindle
