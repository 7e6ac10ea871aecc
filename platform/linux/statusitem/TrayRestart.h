#pragma once

#include <chrono>

namespace quindle {

/// A run of the tray program shorter than this is a failure: it does not stay.
inline constexpr std::chrono::seconds stayingRun(60);

/// How many runs have failed in a row, after one more that took so long.
int failuresAfter(int failures, std::chrono::milliseconds run);

/// How long to wait before the tray program is started again after so many failures in a row: not at all
/// after a run that stayed or the first that did not, then from a second up, twice as long each time, to
/// five minutes.
std::chrono::seconds pauseAfter(int failures);

/// Whether to log that it fails: once, at the third failure in a row.
bool logsFailure(int failures);

} // namespace quindle
