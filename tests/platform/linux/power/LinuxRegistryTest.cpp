#include <memory>
#include <random>

#include <gtest/gtest.h>

#include <QFileInfo>

#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PowerSampler.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/platform/linux/power/SupplyTree.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;
using namespace std::chrono_literals;

namespace {

const QString batteryName = QStringLiteral("AppleSmartBattery");
const QString computerClass = QStringLiteral("IOPlatformExpertDevice");
const QString chargeKey = QStringLiteral("CurrentCapacity");
const QString nameKey = QStringLiteral("DeviceName");

const SupplyTree::Texts fullBattery = {{"type", "Battery"},       {"status", "Full"},
                                       {"charge_now", "4000000"}, {"charge_full", "4000000"},
                                       {"present", "1"},          {"model_name", "A"}};

struct LinuxRegistryTest : testing::Test
{
    SupplyTree tree;
    std::chrono::milliseconds now{0};
    PowerSampler sampler{tree.path(), readDescriptor, [this] { return now; }, endlessPatience};
    LinuxRegistry registry{sampler, {tree.pathOf("dmi"), tree.pathOf("tree")}};

    RegistryObject openBattery() { return registry.serviceMatchingName(batteryName); }
};

TEST_F(LinuxRegistryTest, FindsTheBatteryByNameOnly)
{
    EXPECT_EQ(openBattery(), 0U);
    tree.add("BAT0", fullBattery);
    EXPECT_NE(openBattery(), 0U);
    EXPECT_EQ(registry.serviceMatchingName(QStringLiteral("AppleSmartBatteryManager")), 0U);
    EXPECT_EQ(registry.serviceMatchingName(computerClass), 0U);
    EXPECT_EQ(registry.serviceMatchingClass(batteryName), 0U);
}

TEST_F(LinuxRegistryTest, WhatIsNoSystemBatteryIsNotFound)
{
    for (const auto& [attribute, text] :
         {std::pair("type", "Mains"), std::pair("scope", "Device"), std::pair("present", "0")}) {
        SupplyTree::Texts attributes = fullBattery;
        attributes[attribute] = text;
        tree.add("BAT0", attributes);
        EXPECT_EQ(openBattery(), 0U) << attribute;
        tree.remove("BAT0");
    }
}

TEST_F(LinuxRegistryTest, HandlesAreNeverZeroAndReleasedOnce)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject first = openBattery();
    const RegistryObject second = openBattery();
    EXPECT_NE(first, 0U);
    EXPECT_NE(first, second);
    EXPECT_EQ(registry.release(first), kIOReturnSuccess);
    EXPECT_EQ(registry.release(first), static_cast<IOStatus>(0xe00002c2));
    EXPECT_EQ(registry.release(0), static_cast<IOStatus>(0xe00002c2));
    EXPECT_FALSE(registry.property(first, chargeKey).isValid());
    EXPECT_TRUE(registry.properties(first).isEmpty());
    EXPECT_EQ(registry.property(second, chargeKey), qint64{4000});
}

TEST_F(LinuxRegistryTest, ASampleServesUntilItExpiresOrForASecond)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    tree.write("BAT0", "charge_now", "3000000");
    now += 999ms;
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{4000});
    now += 1ms;
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{3000});
    tree.write("BAT0", "charge_now", "2000000");
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{3000});
    sampler.expire();
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{2000});
}

TEST_F(LinuxRegistryTest, EverySampleIsFresh)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    for (const char* charge : {"3000000", "2000000", "", "10000"}) {
        tree.write("BAT0", "charge_now", charge);
        sampler.expire();
        const QByteArray text(charge);
        const QVariant expected =
            text.isEmpty() ? QVariant() : QVariant::fromValue<qint64>(text.toLongLong() / 1000);
        EXPECT_EQ(registry.property(battery, chargeKey), expected) << charge;
    }
}

TEST_F(LinuxRegistryTest, UnknownKeysAreMissing)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    for (const char* key : {"", "voltage", "PermanentFailureStatus", "DesignCycleCount9C", "model"})
        EXPECT_FALSE(registry.property(battery, QString::fromLatin1(key)).isValid()) << key;
}

TEST_F(LinuxRegistryTest, ABatteryPulledOutAndPutBackIsSeen)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    ASSERT_TRUE(registry.property(battery, chargeKey).isValid());
    tree.remove("BAT0");
    now += 1s;
    EXPECT_EQ(registry.isMatched(batteryName), false);
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{4000}); // 0 of 0 would be shown as "nan%"
    SupplyTree::Texts other = fullBattery;
    other["charge_now"] = "1234000";
    tree.add("BAT0", other);
    now += 1s;
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{1234});
}

TEST_F(LinuxRegistryTest, TimesStartAnewAfterAPlugHoweverOftenTheyAreRead)
{
    constexpr qint64 unknown = 65535;
    tree.add("AC", {{"type", "Mains"}, {"online", "0"}});
    tree.add("BAT0", {{"type", "Battery"},
                      {"status", "Discharging"},
                      {"charge_now", "2000000"},
                      {"charge_full", "4000000"},
                      {"current_now", "1000000"}});
    const RegistryObject battery = openBattery();
    const auto readFor = [&](std::chrono::milliseconds duration, const char* key) {
        QVariant minutes;
        for (const auto end = now + duration; now < end; now += 500ms)
            minutes = registry.property(battery, QLatin1String(key));
        return minutes.toLongLong();
    };
    EXPECT_EQ(readFor(5s, "AvgTimeToEmpty"), unknown);
    EXPECT_EQ(readFor(2s, "AvgTimeToEmpty"), 120);
    tree.write("AC", "online", "1");
    tree.write("BAT0", "status", "Charging");
    EXPECT_EQ(readFor(5s, "AvgTimeToFull"), unknown);
    EXPECT_EQ(readFor(2s, "AvgTimeToFull"), 120);
    tree.write("AC", "online", "0");
    tree.write("BAT0", "status", "Discharging");
    EXPECT_EQ(readFor(5s, "AvgTimeToEmpty"), unknown);
}

TEST_F(LinuxRegistryTest, AnEmptyBayIsSeen)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    tree.write("BAT0", "present", "0\n");
    now += 1s;
    EXPECT_EQ(registry.isMatched(batteryName), false);
    EXPECT_EQ(openBattery(), 0U);
    tree.write("BAT0", "present", "1\n");
    now += 1s;
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{4000});
}

TEST_F(LinuxRegistryTest, WithOneOfTwoPulledTheRestGoesOn)
{
    SupplyTree::Texts second = fullBattery;
    second["model_name"] = "B";
    tree.add("BAT1", second);
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{8000});
    EXPECT_EQ(registry.property(battery, nameKey), QStringLiteral("A"));
    tree.remove("BAT0");
    now += 1s;
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{4000});
    EXPECT_EQ(registry.property(battery, nameKey), QStringLiteral("B"));
}

TEST_F(LinuxRegistryTest, FilesThatAppearOrAreReplacedAreSeen)
{
    tree.add("BAT0", fullBattery);
    const RegistryObject battery = openBattery();
    ASSERT_TRUE(registry.property(battery, chargeKey).isValid());
    EXPECT_FALSE(registry.property(battery, QStringLiteral("CycleCount")).isValid());
    tree.write("BAT0", "cycle_count", "7\n");
    ASSERT_TRUE(QFile::remove(tree.pathOf("BAT0", "charge_now")));
    tree.write("BAT0", "charge_now", "1000000\n");
    now += 1s;
    EXPECT_EQ(registry.property(battery, QStringLiteral("CycleCount")), qint64{7});
    EXPECT_EQ(registry.property(battery, chargeKey), qint64{1000});
}

TEST_F(LinuxRegistryTest, ComputerFromFirmware)
{
    const RegistryObject computer = registry.serviceMatchingClass(computerClass);
    EXPECT_NE(computer, 0U);
    EXPECT_TRUE(registry.properties(computer).isEmpty());
    tree.add("tree", {{"model", std::string("apple,j314s\0", 12)}, {"serial-number", "TREESERIAL"}});
    EXPECT_EQ(registry.property(computer, QStringLiteral("model")), QByteArray("apple,j314s\0", 12));
    tree.add("dmi", {{"product_name", " MacBookPro14,1 "}, {"product_serial", " "}});
    const QVariantMap expected = {{QStringLiteral("model"), QByteArray("MacBookPro14,1\0", 15)},
                                  {QStringLiteral("IOPlatformSerialNumber"), QStringLiteral("TREESERIAL")}};
    EXPECT_EQ(registry.properties(computer), expected);
    EXPECT_FALSE(registry.property(computer, chargeKey).isValid());
}

TEST_F(LinuxRegistryTest, ATreeThatIsNotThere)
{
    PowerSampler nowhere(tree.path() + "/nowhere", readDescriptor, timeSinceBoot, endlessPatience);
    LinuxRegistry other(nowhere, {});
    LinuxPowerSources sources(nowhere);
    EXPECT_EQ(other.serviceMatchingName(batteryName), 0U);
    EXPECT_EQ(sources.sourceCount(), 0);
    EXPECT_EQ(sources.externalAdapterDetails(), std::nullopt);
}

TEST_F(LinuxRegistryTest, AdapterAndUninterruptibleSupply)
{
    LinuxPowerSources sources(sampler);
    tree.add("AUPS", {{"type", "UPS"}, {"capacity", "60"}, {"status", "Full"}});
    tree.add("BAT0", fullBattery);
    tree.add("usb:1", {{"type", "USB"},
                       {"usb_type", "C [PD]"},
                       {"online", "1"},
                       {"voltage_max", "15000000"},
                       {"current_max", "3000000"}});
    tree.add("usb:2", {{"type", "USB"},
                       {"usb_type", "C [PD]"},
                       {"online", "1"},
                       {"voltage_max", "20000000"},
                       {"current_max", "4700000"}});
    EXPECT_EQ(sources.sourceCount(), 2);
    EXPECT_EQ(sources.description(0)->value(QStringLiteral("Type")), QStringLiteral("InternalBattery"));
    EXPECT_EQ(sources.description(0)->value(QStringLiteral("Power Source State")),
              QStringLiteral("AC Power"));
    EXPECT_EQ(sources.description(1)->value(QStringLiteral("Type")), QStringLiteral("UPS"));
    EXPECT_EQ(sources.externalAdapterDetails(), (QVariantMap{{QStringLiteral("Watts"), qint64{94}}}));
}

/// Random bytes and random numbers in every attribute: whatever comes out, it is of the documented type.
TEST_F(LinuxRegistryTest, RandomAttributesNeverCrash)
{
    std::mt19937 random(20261121);
    const auto upTo = [&](unsigned limit) {
        return std::uniform_int_distribution<unsigned>(0, limit)(random);
    };
    const char* const words[] = {"0",
                                 "-1",
                                 "9223372036854775807",
                                 "-9223372036854775808",
                                 "Charging",
                                 "Discharging",
                                 "Not charging",
                                 "Full",
                                 "1",
                                 "100",
                                 "4000",
                                 "4000000",
                                 "[PD",
                                 "PD]",
                                 "[",
                                 ""};
    const auto randomText = [&] {
        if (upTo(3) != 0)
            return std::string(words[upTo(std::size(words) - 1)]);
        std::string text(upTo(70), '\0');
        for (char& byte : text)
            byte = static_cast<char>(upTo(255));
        return text;
    };
    PowerSampler fuzzed(
        tree.path(),
        [&](int, const char* attribute, char* buffer, std::size_t size) {
            if (std::string_view(attribute) == "type")
                return static_cast<ssize_t>(std::string("Battery").copy(buffer, size));
            const std::string text = randomText();
            return text.empty() ? ssize_t{-EIO} : static_cast<ssize_t>(text.copy(buffer, size));
        },
        [this] { return now; }, endlessPatience);
    SupplyTree::Texts everyAttribute;
    for (std::size_t i = 0; i < attributeCount; ++i)
        everyAttribute[attributeName(static_cast<Attribute>(i))] = "";
    tree.add("BAT0", everyAttribute);
    tree.add("BAT1", everyAttribute);
    LinuxRegistry fuzzedRegistry(fuzzed, {});
    LinuxPowerSources sources(fuzzed);
    RegistryObject battery = 0;
    while (battery == 0)
        battery = fuzzedRegistry.serviceMatchingName(batteryName);
    for (int round = 0; round < 3000; ++round) {
        now += 1s;
        const QVariantMap properties = fuzzedRegistry.properties(battery);
        for (auto property = properties.begin(); property != properties.end(); ++property) {
            const int type = property.value().typeId();
            EXPECT_TRUE(type == QMetaType::LongLong || type == QMetaType::Bool ||
                        type == QMetaType::QString ||
                        (type == QMetaType::Double && property.key() == QStringLiteral("Temperature")))
                << property.key().toStdString();
        }
        for (int source = 0; source < sources.sourceCount().value_or(0); ++source)
            sources.description(source);
        sources.externalAdapterDetails();
    }
}

} // namespace
