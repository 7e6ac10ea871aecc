#include <gtest/gtest.h>

#include "platform/linux/power/SupplyAttributes.h"
#include "platform/linux/power/SupplyDirectory.h"
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

TEST(SupplyAttributes, Kinds)
{
    EXPECT_EQ(supplyKind("Battery", ""), SupplyKind::Battery);
    EXPECT_EQ(supplyKind("Battery", "System"), SupplyKind::Battery);
    EXPECT_EQ(supplyKind("Battery", "Device"), SupplyKind::Other);
    EXPECT_EQ(supplyKind("UPS", ""), SupplyKind::UninterruptibleSupply);
    EXPECT_EQ(supplyKind("Mains", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("USB", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("USB", "Device"), SupplyKind::Other);
    EXPECT_EQ(supplyKind("USB_PD", ""), SupplyKind::External);
    EXPECT_EQ(supplyKind("Wireless", ""), SupplyKind::Other);
    EXPECT_EQ(supplyKind("", ""), SupplyKind::Other);
}

} // namespace
