#include "menubar/StatusIcon.h"

#include <gtest/gtest.h>

#include "tests/support/NotFinite.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct IconCase
{
    double charge;
    const char* name;
};

TEST(StatusIcon, OnBattery)
{
    const IconCase cases[]{
        {100, "#bat44"}, {90, "#bat44"},         {89.9, "#bat34"}, {70, "#bat34"},       {69.9, "#bat24"},
        {40, "#bat24"},  {39.9, "#bat14"},       {20, "#bat14"},   {19.9, "#bat04"},     {0, "#bat04"},
        {-5, "#bat04"},  {notANumber, "#bat04"}, {250, "#bat44"},  {infinity, "#bat44"},
    };
    for (const IconCase& row : cases)
        EXPECT_EQ(batteryIconName(row.charge), QString::fromLatin1(row.name)) << row.charge;
}

TEST(StatusIcon, Charging)
{
    const IconCase cases[]{
        {80, "#bat44Charge"},   {100, "#bat44Charge"}, {infinity, "#bat44Charge"},   {79.99, "#bat04Charge"},
        {79.9, "#bat04Charge"}, {0, "#bat04Charge"},   {notANumber, "#bat04Charge"},
    };
    for (const IconCase& row : cases)
        EXPECT_EQ(chargingIconName(row.charge), QString::fromLatin1(row.name)) << row.charge;
}

TEST(StatusIcon, NoBattery)
{
    EXPECT_EQ(noBatteryIconName(), QStringLiteral("AppIconBW"));
}

} // namespace
