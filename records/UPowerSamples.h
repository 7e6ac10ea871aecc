#pragma once

#include <vector>

#include "platform/PowerHistory.h"
#include "samples/Sample.h"

namespace quindle {

/// The samples that another service's records come to, sorted, all before `end`. The power of a sample is
/// that of the last rate in the five minutes before it, negative while discharging; the charge without a
/// state says nothing (services mark their own starts so).
std::vector<Sample> samplesFromHistory(const RecordedPower& recorded, qint64 end);

} // namespace quindle
