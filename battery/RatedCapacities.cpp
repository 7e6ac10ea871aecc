#include "battery/RatedCapacities.h"

#include <algorithm>
#include <array>

namespace quindle {

namespace {

struct RatedCapacity
{
    QStringView macModel;
    qint64 capacity = 0; // mAh
};

constexpr std::array ratedCapacities{
    // clang-format off
    RatedCapacity{u"MacBookAir3,1", 4680},
    RatedCapacity{u"MacBookAir3,2", 6700},
    RatedCapacity{u"MacBookAir4,1", 4680},
    RatedCapacity{u"MacBookAir4,2", 6700},
    RatedCapacity{u"MacBookAir5,1", 4680},
    RatedCapacity{u"MacBookAir5,2", 6700},
    RatedCapacity{u"MacBookAir6,1", 5100},
    RatedCapacity{u"MacBookAir6,2", 7150},
    RatedCapacity{u"MacBookAir7,1", 5100},
    RatedCapacity{u"MacBookAir7,2", 7150},
    RatedCapacity{u"MacBookPro12,1", 6559},
    RatedCapacity{u"MacBook8,1", 5263},
    RatedCapacity{u"MacBook9,1", 5474},
    // clang-format on
};

} // namespace

qint64 ratedCapacity(QStringView macModel)
{
    // Whole identifiers only: "MacBookAir6,22" would be another model than "MacBookAir6,2".
    const auto isModel = [macModel](const RatedCapacity& row) { return row.macModel == macModel; };
    const auto* const found = std::find_if(ratedCapacities.begin(), ratedCapacities.end(), isModel);
    return found == ratedCapacities.end() ? 0 : found->capacity;
}

} // namespace quindle
