#include "battery/ManufacturerName.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(ManufacturerName, Table)
{
    constexpr std::pair<const char*, const char*> rows[] = {
        {"DP", "Dynapack"},
        {"SMP", "Simplo"},
        {"xDPyDP", "xDynapackyDynapack"},
        {"SMPSMP", "SimploSimplo"},
        {"DPSMP", "DynapackSimplo"},
        {"SMDP", "SMDynapack"}, // "DP" is replaced first, so "SMP" never appears
        {"dp smp", "dp smp"},
        {"LGC", "LGC"},
        {"Simplo", "Simplo"},
        {"", ""},
    };
    for (const auto& [reported, name] : rows)
        EXPECT_EQ(manufacturerName(QString::fromLatin1(reported)), QLatin1String(name)) << reported;
}

} // namespace
