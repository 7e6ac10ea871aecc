#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/supplies/SupplyAttributes.h"

namespace quindle {

/// What a power supply is to this computer.
enum class SupplyKind {
    Other,
    Battery,
    UninterruptibleSupply,
    External,   ///< may feed the computer: mains or USB
    Peripheral, ///< a battery of something beside the computer: a mouse, a headset, a phone
};

/// The kind that the texts of "type" and "scope" mean.
SupplyKind supplyKind(std::string_view type, std::string_view scope);

/// The attributes that this program wants of supplies of that kind.
const AttributeSet& attributesOf(SupplyKind kind);

/// One supply as it was when it was read. The supply does not have an attribute that is missing without
/// having failed.
struct SupplyReading
{
    std::string name;
    SupplyKind kind = SupplyKind::Other;
    SupplyAttributes attributes;
    AttributeSet failed; ///< failed on the way to the device; their last values may stand in

    bool operator==(const SupplyReading&) const = default;
};

/// All supplies of one moment, by name.
using SupplyReadings = std::vector<SupplyReading>;

} // namespace quindle
