#pragma once

#include <algorithm>
#include <memory>

#include <QStringList>

#include "battery/QDBattery.h"
#include "facts/Facts.h"
#include "mac/QDMac.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/ScopedTimeZone.h"

namespace quindle::test {

/// A portable computer with every fact but a charge limit and devices, on battery power.
/// Change what it is made of, then `make` it.
struct FactComputer
{
    ScopedTimeZone zone{"UTC"};
    FakePlatform platform;
    std::unique_ptr<QDMac> mac;
    bool showsWattHours = false;

    FactComputer()
    {
        platform.setComputer(QStringLiteral("MacBookAir6,2"), QStringLiteral("C02MN1TXF5YW"));
        platform.host.name = QStringLiteral("Demo Computer");
        platform.systemFiles.files[QStringLiteral("/System/Library/CoreServices/SystemVersion.plist")] = {
            {QStringLiteral("ProductVersion"), QStringLiteral("10.11.6")}};
        setCondition(QStringLiteral("Good"));
        platform.battery() = {
            {QStringLiteral("CurrentCapacity"), 4000},
            {QStringLiteral("MaxCapacity"), 6000},
            {QStringLiteral("DesignCapacity"), 7300},
            {QStringLiteral("CycleCount"), 1293},
            {QStringLiteral("Voltage"), 12400},
            {QStringLiteral("Amperage"), -1000},
            {QStringLiteral("ExternalConnected"), false},
            {QStringLiteral("IsCharging"), false},
            {QStringLiteral("FullyCharged"), false},
            {QStringLiteral("AvgTimeToEmpty"), 222},
            {QStringLiteral("AvgTimeToFull"), 65535},
            {QStringLiteral("Temperature"), 3031},
            {QStringLiteral("Manufacturer"), QStringLiteral("SMP")},
            {QStringLiteral("DeviceName"), QStringLiteral("bq20z451")},
            {QStringLiteral("BatterySerialNumber"), QStringLiteral("D867D0E10AB1234")},
            {QStringLiteral("ManufactureDate"), 17506},
        };
    }

    void make() { mac = QDMac::init(platform.platform); }

    /// The demonstration computer instead.
    void makeDemo() { mac = QDMac::initWithDemoMode(platform.platform, true); }

    /// The power-source service's word for the battery's health.
    void setCondition(const QString& condition)
    {
        platform.powerSources.sources.emplace().push_back(
            QVariantMap{{QStringLiteral("BatteryHealth"), condition}});
    }

    /// Invalid: the key is missing.
    void setBattery(const char* key, const QVariant& value)
    {
        if (value.isValid())
            platform.battery()[QLatin1String(key)] = value;
        else
            platform.battery().remove(QLatin1String(key));
    }

    void removeBattery() { platform.registry.entries.erase(QStringLiteral("AppleSmartBattery")); }

    void plugIn()
    {
        setBattery("ExternalConnected", true);
        setBattery("IsCharging", true);
        setBattery("Amperage", 1000);
        platform.powerSources.adapter = {{QStringLiteral("Watts"), 60}};
    }

    void fillUp()
    {
        plugIn();
        setBattery("IsCharging", false);
        setBattery("FullyCharged", true);
        setBattery("Amperage", 0);
    }

    /// Neither charging nor full, since the start.
    void holdBack()
    {
        fillUp();
        setBattery("FullyCharged", false);
    }

    void addDevices()
    {
        platform.powerSources.limit = 80;
        platform.powerSources.devices = {
            {QStringLiteral("Marathon Mouse M705"), 85, std::nullopt},
            {QStringLiteral("K750 Keyboard"), std::nullopt, QStringLiteral("Low")},
            {QStringLiteral("Silent"), std::nullopt, std::nullopt}};
    }

    QDBattery& battery() { return *mac->Battery(); }
    FactSources sources()
    {
        return {.mac = mac.get(), .powerSources = &platform.powerSources, .showsWattHours = showsWattHours};
    }

    Fact fact(FactId id, FactPlace place = FactPlace::View)
    {
        const std::vector<Fact> facts = factsFor(place, sources());
        const auto found =
            std::find_if(facts.begin(), facts.end(), [id](const Fact& fact) { return fact.id == id; });
        return found == facts.end() ? Fact() : *found;
    }

    /// What is shown at a place, one "caption|value" a line.
    QString shown(FactPlace place)
    {
        QStringList lines;
        for (const Fact& fact : factsFor(place, sources())) {
            if (fact.shown)
                lines.append(fact.caption + u'|' + factText(fact, place));
        }
        return lines.join(u'\n');
    }
};

} // namespace quindle::test
