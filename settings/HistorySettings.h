#pragma once

#include <QString>

namespace quindle {

class UserDefaults;

/// The settings of the recorded history, in the helper's own database (`own`), which the application shares.
/// Read at each call. Main thread only.

/// Whether charge, power and a daily snapshot are recorded; true unless false is stored.
bool recordsHistory(const UserDefaults& own);
void setRecordsHistory(UserDefaults& own, bool records);

/// The notification by which a process that shows the history asks for the samples in the helper's memory.
QString samplesWantedNotification();

/// The notification by which a process that is about to delete the history has the helper forget the samples
/// in its memory.
QString historyDeletedNotification();

/// For how many days samples are kept; 0, which negative numbers read as, means for ever.
qint64 historyDays(const UserDefaults& own);
void setHistoryDays(UserDefaults& own, qint64 days);

} // namespace quindle
