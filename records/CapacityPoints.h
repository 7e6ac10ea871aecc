#pragma once

#include <vector>

#include <QVariant>

#include "records/CapacityPoint.h"

namespace quindle {

/// What the snapshot records say about wear, sorted by moment. Records without a date, and those without a
/// full-charge capacity that is a number above 0, say nothing; any type of number will do.
std::vector<CapacityPoint> capacityPoints(const QVariantList& records);

} // namespace quindle
