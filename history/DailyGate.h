#pragma once

#include <QDateTime>

namespace quindle {

/// True when strictly more than 86,400 seconds have passed from the last daily upload to now. It measures
/// elapsed time and not calendar days, so a clock that was set back closes the gate for as long.
bool isDailyUploadDue(const QDateTime& lastUpload, const QDateTime& now);

} // namespace quindle
