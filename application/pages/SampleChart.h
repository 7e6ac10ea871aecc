#pragma once

#include <vector>

#include "charts/ChartContent.h"
#include "samples/Sample.h"

namespace quindle {

enum class SampleQuantity { Charge, Power };

/// Charge or power over `moments`, charging shaded. Power has no sign: the shading shows which way it flows.
/// `samples` by moment. A sample of the last ten minutes before the end is marked as what is now. Those
/// before the moment `ownSince` come from another service's history and are a series of their own, which is
/// quiet.
ChartContent sampleChart(const std::vector<Sample>& samples, SampleQuantity quantity, AxisSpan moments,
                         qint64 ownSince = 0);

/// The samples after which the line is broken (see gapsBetween). A pause while the battery rests, neither
/// charged nor discharged and as full as before, is not a gap: there is nothing to record.
std::vector<std::size_t> gapsOf(const std::vector<Sample>& samples);

/// From each sample that charges to the next one of another state or, before a gap, to the last that charges.
std::vector<ShadedSpan> chargingSpans(const std::vector<Sample>& samples,
                                      const std::vector<std::size_t>& gaps);

} // namespace quindle
