#pragma once

#include <vector>

#include <QByteArray>

#include "charts/LinearScale.h"
#include "samples/Sample.h"

namespace quindle {

/// The samples of those moments as RFC 4180 has it: a line of headings, then one each with its moment (ISO
/// 8601, UTC), charge in percent, power in watts (negative while discharging; empty where it is not known)
/// and state. Numbers have points in every locale.
QByteArray sampleTable(const std::vector<Sample>& samples, AxisSpan moments);

} // namespace quindle
