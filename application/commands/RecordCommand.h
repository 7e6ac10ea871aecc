#pragma once

#include <QIODevice>

#include "application/commands/CommandReport.h"
#include "platform/Platform.h"
#include "platform/PowerHistory.h"

namespace quindle {

/// `quindle --record`: adds the samples on `input` (see samples/Sample.h) to the history, saves today's
/// snapshot if there is none yet, and once a day makes old samples coarser and removes what the user does not
/// want to keep. Does nothing, and reads nothing, when recording is switched off.
///
/// Needs a QCoreApplication; opens no window, and may wait for disk and bus.
///
/// Gives the exit code: 0; EX_DATAERR when a line is not a sample, the others are kept; EX_CANTCREAT,
/// EX_IOERR or EX_TEMPFAIL when something could not be stored. What can be done is still done; the first
/// failure counts.
int recordHistory(const Platform& platform, PowerHistory& powerHistory, QIODevice& input,
                  const CommandReport& report);

} // namespace quindle
