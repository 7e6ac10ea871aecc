#include <gtest/gtest.h>

#include "platform/linux/supplies/SupplyReading.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(SupplyAttributes, Numbers)
{
    const std::pair<std::string_view, std::optional<double>> cases[] = {
        {"5420000\n", 5420000},
        {"-26000\n", -26000},
        {"  7 \n", 7},
        {"0", 0},
        {"", {}},
        {"\n", {}},
        {"12abc", {}},
        {"1.5", {}},
        {"0x10", {}},
        {"9223372036854775807", 9223372036854775807.0},
        {"99999999999999999999", {}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(numberFromText(text), expected) << text;
}

TEST(SupplyAttributes, ReadableTexts)
{
    const std::pair<std::string_view, std::optional<QString>> cases[] = {
        {"SANYO\n", QStringLiteral("SANYO")},
        {"  457\n", QStringLiteral("457")},
        {"83080 4704/99/13\n", QStringLiteral("83080 4704/99/13")},
        {"    \n", {}},
        {"", {}},
        {"\x01 SM\x02P \x7f\n", QStringLiteral("SMP")},
        {"\xff\xfe"
         "AB\xc3\n",
         QStringLiteral("AB")},
        {"Z\xc3\xa4hler \xf0\x9f\x94\x8b\n", QStringLiteral("Z\u00e4hler \U0001F50B")},
        {"\x80\x81\n", {}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(readableText(text), expected) << text;
}

TEST(SupplyAttributes, TextsAndNumbersThatWereSet)
{
    SupplyAttributes attributes;
    EXPECT_EQ(attributes.text(Attribute::Status), std::nullopt);
    attributes.set(Attribute::Status, "Full\n");
    attributes.set(Attribute::Capacity, "99\n");
    attributes.set(Attribute::SerialNumber, "");
    EXPECT_EQ(attributes.text(Attribute::Status), "Full\n");
    EXPECT_EQ(attributes.text(Attribute::SerialNumber), "");
    EXPECT_EQ(attributes.number(Attribute::Capacity), 99);
    EXPECT_EQ(attributes.number(Attribute::Status), std::nullopt);
    attributes.set(Attribute::Status, "Charging");
    EXPECT_EQ(attributes.text(Attribute::Status), "Charging");
}

TEST(SupplyAttributes, FromAUevent)
{
    const auto attributes = attributesFromUevent("POWER_SUPPLY_NAME=BAT0\n"
                                                 "POWER_SUPPLY_TYPE=Battery\n"
                                                 "POWER_SUPPLY_STATUS=Not charging\n"
                                                 "POWER_SUPPLY_CHARGE_NOW=3955000\n"
                                                 "POWER_SUPPLY_CHARGE_NOW_AND_THEN=1\n"
                                                 "POWER_SUPPLY_SERIAL_NUMBER= 70=64\n"
                                                 "POWER_SUPPLY_MANUFACTURER=\n"
                                                 "DEVTYPE=power_supply\n"
                                                 "POWER_SUPPLY_CAPACITY=99");
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->text(Attribute::Type), "Battery");
    EXPECT_EQ(attributes->text(Attribute::Status), "Not charging");
    EXPECT_EQ(attributes->number(Attribute::ChargeNow), 3955000);
    EXPECT_EQ(attributes->text(Attribute::SerialNumber), " 70=64");
    EXPECT_EQ(attributes->text(Attribute::Manufacturer), "");
    EXPECT_EQ(attributes->number(Attribute::Capacity), 99);
    EXPECT_EQ(attributes->text(Attribute::ModelName), std::nullopt);
}

TEST(SupplyAttributes, WhatIsNoUeventOfTheKernel)
{
    for (const char* text : {"", "\n", "POWER_SUPPLY_STATUS=Full\n", "MAJOR=1\n", "=\n", "POWER_SUPPLY_NAME"})
        EXPECT_FALSE(attributesFromUevent(text)) << text;
    EXPECT_TRUE(attributesFromUevent("POWER_SUPPLY_NAME=\n"));
}

TEST(SupplyAttributes, Kinds)
{
    EXPECT_EQ(supplyKind("Battery", ""), SupplyKind::Battery);
    EXPECT_EQ(supplyKind("Battery", "System"), SupplyKind::Battery);
    EXPECT_EQ(supplyKind("Battery", "Device"), SupplyKind::Peripheral);
    EXPECT_EQ(supplyKind("UPS", ""), SupplyKind::UninterruptibleSupply);
    EXPECT_EQ(supplyKind("Mains", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("USB", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("USB", "Device"), SupplyKind::Other);
    EXPECT_EQ(supplyKind("USB_PD", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("Wireless", ""), SupplyKind::Other);
    EXPECT_EQ(supplyKind("", ""), SupplyKind::Other);
}

} // namespace
