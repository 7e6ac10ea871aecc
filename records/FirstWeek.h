#pragma once

#include <vector>

#include "platform/PowerHistory.h"
#include "records/SampleStore.h"

namespace quindle {

/// The samples that another service's records make, sorted, all before `end`. The power of a sample is that
/// of the last rate in the five minutes before it, negative while discharging; a charge without a state says
/// nothing, since services mark their own starts that way.
std::vector<Sample> samplesFromHistory(const RecordedPower& recorded, qint64 end);

/// Takes over what another service had recorded of the battery before the first sample of the store, once,
/// and marked as its own. `now` is in seconds since 1970. Where there is no such service, or it does not
/// answer, the next call asks again.
StoreOutcome takeOverFirstWeek(SampleStore& store, PowerHistory& history, qint64 now);

} // namespace quindle
