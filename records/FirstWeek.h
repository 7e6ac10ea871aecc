#pragma once

#include "platform/PowerHistory.h"
#include "records/SampleStore.h"

namespace quindle {

/// Takes over what another service had recorded of the battery before the first sample of the store, once,
/// and marked as its own. `now` is in seconds since 1970. Where there is no such service, or it does not
/// answer, the next call asks again.
StoreOutcome takeOverFirstWeek(SampleStore& store, PowerHistory& history, qint64 now);

} // namespace quindle
