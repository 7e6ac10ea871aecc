#include "battery/RatedCapacities.h"

#include <gtest/gtest.h>

#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(RatedCapacity, Table)
{
    constexpr std::pair<QStringView, qint64> rows[] = {
        {u"MacBookAir3,1", 4680},
        {u"MacBookAir3,2", 6700},
        {u"MacBookAir4,1", 4680},
        {u"MacBookAir4,2", 6700},
        {u"MacBookAir5,1", 4680},
        {u"MacBookAir5,2", 6700},
        {u"MacBookAir6,1", 5100},
        {u"MacBookAir6,2", 7150},
        {u"MacBookAir7,1", 5100},
        {u"MacBookAir7,2", 7150},
        {u"MacBookPro12,1", 6559},
        {u"MacBook8,1", 5263},
        {u"MacBook9,1", 5474},
        // No other text, however similar.
        {u"", 0},
        {u"MacBookAir2,1", 0},
        {u"MacBookAir6,3", 0},
        {u"MacBookAir6,22", 0},
        {u"MacBookAir6,", 0},
        {u"macbookair6,2", 0},
        {u" MacBookAir6,2", 0},
        {u"MacBookAir6,2 ", 0},
        {u"MacBookPro14,1", 0},
        {u"MacBook10,1", 0},
    };
    for (const auto& [model, capacity] : rows)
        EXPECT_EQ(ratedCapacity(model), capacity) << model.toString().toStdString();
}

} // namespace
