#pragma once

#include <chrono>

namespace quindle {

/// A run of the tray program shorter than this is a failure.
inline constexpr std::chrono::seconds stayingRun(60);

/// How many runs have failed in a row, after one more of that length.
int failuresAfter(int failures, std::chrono::milliseconds run);

/// How long to wait before the tray program is started again after that many failures in a row: not at all
/// after a run that lasted or a first failure, then from a second up to five minutes, twice as long each
/// time.
std::chrono::seconds pauseAfter(int failures);

/// Whether to log that it fails: once, at the third failure in a row.
bool logsFailure(int failures);

} // namespace quindle
