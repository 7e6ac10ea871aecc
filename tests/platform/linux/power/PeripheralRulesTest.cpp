#include <gtest/gtest.h>

#include "platform/linux/power/PeripheralBatteries.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/TestData.h"

using namespace quindle;

namespace {

using AttributeTexts = std::vector<std::pair<Attribute, const char*>>;

SupplyReading peripheral(const char* name, const AttributeTexts& texts)
{
    SupplyReading reading{name, SupplyKind::Peripheral, {}, {}};
    for (const auto& [attribute, text] : texts)
        reading.attributes.set(attribute, text);
    return reading;
}

/// "name 35 %", "name Low" or "name 35 % Low", joined by ", ".
QString described(const QList<PeripheralBattery>& batteries)
{
    QStringList all;
    for (const PeripheralBattery& battery : batteries) {
        QString text = battery.name;
        if (battery.percent)
            text += QStringLiteral(" %1 %").arg(*battery.percent);
        if (battery.level)
            text += u' ' + *battery.level;
        all.append(text);
    }
    return all.join(QStringLiteral(", "));
}

QString described(const SupplyReading& reading)
{
    return described(peripheralsFrom({reading}, {}));
}

TEST(PeripheralRules, ASupplysNameAndPercentageOrLevel)
{
    const auto model = std::pair(Attribute::ModelName, "Mouse\n");
    EXPECT_EQ(described(peripheral("hidpp_battery_0", {model, {Attribute::Capacity, "35\n"}})),
              QStringLiteral("Mouse 35 %"));
    EXPECT_EQ(described(peripheral("hidpp_battery_0", {model, {Attribute::CapacityLevel, "Low\n"}})),
              QStringLiteral("Mouse Low"));
    EXPECT_EQ(described(peripheral("hidpp_battery_0", {{Attribute::Capacity, "0"}})),
              QStringLiteral("hidpp_battery_0 0 %"));
    EXPECT_EQ(described(peripheral("hidpp_battery_0",
                                   {model, {Attribute::Capacity, "35"}, {Attribute::Online, "1"}})),
              QStringLiteral("Mouse 35 %"));
}

TEST(PeripheralRules, WhatIsNotKnownIsLeftOut)
{
    const auto model = std::pair(Attribute::ModelName, "Mouse\n");
    EXPECT_EQ(described(peripheral("a", {model})), QString());
    EXPECT_EQ(described(peripheral("a", {model, {Attribute::CapacityLevel, "Unknown\n"}})), QString());
    EXPECT_EQ(described(peripheral("a", {model, {Attribute::Capacity, "101"}})), QString());
    EXPECT_EQ(described(peripheral("a", {model, {Attribute::Capacity, "-1"}})), QString());
    EXPECT_EQ(described(peripheral("a", {model, {Attribute::Capacity, "35"}, {Attribute::Online, "0"}})),
              QString());
    EXPECT_EQ(described(peripheral("a", {model, {Attribute::Capacity, "35"}, {Attribute::Present, "0"}})),
              QString());
}

TEST(PeripheralRules, TheComputersOwnSuppliesAreNone)
{
    SupplyReading reading = peripheral("BAT0", {{Attribute::Capacity, "35"}});
    for (const SupplyKind kind :
         {SupplyKind::Other, SupplyKind::Battery, SupplyKind::UninterruptibleSupply, SupplyKind::External}) {
        reading.kind = kind;
        EXPECT_EQ(described(reading), QString());
    }
}

TEST(PeripheralRules, BluetoothDevicesFollowThatNoSupplyShows)
{
    const BluetoothBattery headset{QStringLiteral("AA:BB:CC:DD:EE:FF"), QStringLiteral("Headset"), 70};
    const auto both = [&](const char* name, const AttributeTexts& texts) {
        return described(peripheralsFrom({peripheral(name, texts)}, {headset}));
    };
    const auto capacity = std::pair(Attribute::Capacity, "35");
    EXPECT_EQ(described(peripheralsFrom({}, {headset})), QStringLiteral("Headset 70 %"));
    EXPECT_EQ(both("mouse", {capacity}), QStringLiteral("mouse 35 %, Headset 70 %"));
    EXPECT_EQ(both("hid-aa:bb:cc:dd:ee:ff-battery", {capacity}),
              QStringLiteral("hid-aa:bb:cc:dd:ee:ff-battery 35 %"));
    EXPECT_EQ(both("a", {capacity, {Attribute::SerialNumber, "aa:bb:cc:dd:ee:ff\n"}}),
              QStringLiteral("a 35 %"));
    EXPECT_EQ(both("a", {capacity, {Attribute::ModelName, "headset\n"}}), QStringLiteral("headset 35 %"));
    // A supply that shows nothing hides no other device.
    EXPECT_EQ(both("hid-aa:bb:cc:dd:ee:ff-battery", {}), QStringLiteral("Headset 70 %"));
}

TEST(PeripheralRules, ABluetoothDeviceMayCallItselfAnything)
{
    const auto name = [](const QString& address, const QString& text) {
        return described(peripheralsFrom({}, {{address, text, 5}}));
    };
    EXPECT_EQ(name(QStringLiteral("AA"), QString()), QStringLiteral("AA 5 %"));
    EXPECT_EQ(name(QString(), QStringLiteral(" \n")), QString());
    EXPECT_EQ(name(QString(), QStringLiteral("a\u202Eb\n")), QStringLiteral("ab 5 %"));
    EXPECT_EQ(name(QString(), QString(100'000, u'x')).size(), 64 + 4);
}

struct RecordedDevices
{
    const char* folder;
    const char* devices;
};

const RecordedDevices recordedDevices[] = {
    {"desktop-keyboard-k375s-level-only", "K370s/K375s Multi-Device Wireless Keyboard Normal"},
    {"desktop-logitech-m510-level-only", "Wireless Mouse M510 Normal"},
    {"desktop-logitech-mx-anywhere3", "MX Anywhere 3 35 %"},
    {"legion-with-wireless-headset", "PRO X Wireless 65 %"},
    {"pinephone-with-keyboard", "ip5xxx-battery 27 %"},
    {"thinkpad-t430s", ""},
};

TEST(PeripheralBatteries, OfRecordedComputers)
{
    for (const RecordedDevices& computer : recordedDevices) {
        const QString folder = testDataFolder() + QStringLiteral("/sysfs/") + QLatin1String(computer.folder) +
                               QStringLiteral("/class/power_supply");
        PeripheralBatteries batteries(folder.toStdString(), {}, readDescriptor, endlessPatience);
        EXPECT_EQ(described(batteries.now()), QLatin1String(computer.devices)) << computer.folder;
    }
}

TEST(PeripheralBatteries, FollowTheDevices)
{
    const SupplyTree tree;
    PeripheralBatteries batteries(tree.path(), {}, readDescriptor, endlessPatience);
    EXPECT_EQ(described(batteries.now()), QString());
    tree.add("hidpp_battery_0", {{"type", "Battery"}, {"scope", "Device"}, {"capacity", "35"}});
    EXPECT_EQ(described(batteries.now()), QStringLiteral("hidpp_battery_0 35 %"));
    tree.write("hidpp_battery_0", "capacity", "34");
    EXPECT_EQ(described(batteries.now()), QStringLiteral("hidpp_battery_0 34 %"));
    tree.remove("hidpp_battery_0");
    EXPECT_EQ(described(batteries.now()), QString());
}

} // namespace
