#pragma once

#include <QString>
#include <QStringList>

/// The spans of time that the history is shown over.
namespace quindle {

enum class HistoryRange { Day, Week, Month, Year, All };

/// In the order of the ranges, with mnemonics.
QStringList historyRangeTitles();

/// Seconds since 1970; 0 for all.
qint64 historyRangeStart(HistoryRange range, qint64 now);

/// "last 24 hours"
QString historyRangeText(HistoryRange range);

} // namespace quindle
