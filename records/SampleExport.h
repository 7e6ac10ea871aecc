#pragma once

#include <vector>

#include <QByteArray>

#include "records/SnapshotExport.h"
#include "samples/Sample.h"

namespace quindle {

/// Samples as text for other programs: a table (RFC 4180) or an array of objects, one a line. Moments are ISO
/// 8601 in UTC, numbers have a decimal point in every locale and two places; what is not known is an empty
/// field, or null.
QByteArray samplesText(const std::vector<Sample>& samples, ExportFormat format);

} // namespace quindle
