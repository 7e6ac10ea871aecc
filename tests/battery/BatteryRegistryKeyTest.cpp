#include "battery/BatteryRegistryKey.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

// Row n is number n.
constexpr const char* texts[] = {
    "ExternalConnected", "Amperage",           "CurrentCapacity",        "CycleCount",
    "DesignCapacity",    "DesignCycleCount9C", "FullyCharged",           "IsCharging",
    "MaxCapacity",       "Temperature",        "TimeRemaining",          "InstantTimeToEmpty",
    "AvgTimeToFull",     "AvgTimeToEmpty",     "PermanentFailureStatus", "Manufacturer",
    "PackReserve",       "ManufactureDate",    "BatterySerialNumber",    "InstantAmperage",
    "Voltage",           "DeviceName",
};

TEST(BatteryRegistryKey, NumbersAndTextsReadBothWays)
{
    ASSERT_EQ(std::size(texts), 22U);
    ASSERT_EQ(batteryRegistryKeyCount, 22);
    for (int number = 0; number < batteryRegistryKeyCount; ++number) {
        const auto key = static_cast<BatteryRegistryKey>(number);
        const QString text = QString::fromLatin1(texts[number]);
        EXPECT_EQ(registryKeyText(key), text) << number;
        EXPECT_EQ(registryKeyFromText(text), key) << number;
    }
}

TEST(BatteryRegistryKey, NamesStandForTheirOwnTexts)
{
    EXPECT_EQ(registryKeyText(BatteryRegistryKey::MaxCapacity), QStringLiteral("MaxCapacity"));
    EXPECT_EQ(registryKeyText(BatteryRegistryKey::AvgTimeToFull), QStringLiteral("AvgTimeToFull"));
    EXPECT_EQ(registryKeyText(BatteryRegistryKey::AvgTimeToEmpty), QStringLiteral("AvgTimeToEmpty"));
    EXPECT_EQ(registryKeyText(BatteryRegistryKey::InstantAmperage), QStringLiteral("InstantAmperage"));
    EXPECT_EQ(registryKeyText(BatteryRegistryKey::DeviceName), QStringLiteral("DeviceName"));
}

TEST(BatteryRegistryKey, OtherTextsAreNoKeys)
{
    for (const char* text : {"", "maxcapacity", "MaxCapacity ", " MaxCapacity", "MaxCapactiy", "SerialNumber",
                             "Model", "DesignCycleCount"})
        EXPECT_EQ(registryKeyFromText(QString::fromLatin1(text)), std::nullopt) << text;
}

} // namespace
