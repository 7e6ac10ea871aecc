#include "settings/HistorySettings.h"

#include <algorithm>

#include "common/NumberConversion.h"
#include "platform/UserDefaults.h"
#include "settings/SettingsTable.h"

namespace quindle {

bool recordsHistory(const UserDefaults& own)
{
    return convertToBoolean(own.object(Keys::recordHistory.name())).value_or(*Keys::recordHistory.missing);
}

void setRecordsHistory(UserDefaults& own, bool records)
{
    own.setObject(Keys::recordHistory.name(), records);
}

QString samplesWantedNotification()
{
    return QStringLiteral("SamplesWantedNotification");
}

QString historyDeletedNotification()
{
    return QStringLiteral("HistoryDeletedNotification");
}

qint64 historyDays(const UserDefaults& own)
{
    constexpr qint64 longest = 1'000'000; // of more, no moment can be computed
    const qint64 days = own.integer(Keys::historyDays.name());
    return days > longest ? 0 : std::max(qint64{0}, days);
}

void setHistoryDays(UserDefaults& own, qint64 days)
{
    own.setInteger(Keys::historyDays.name(), days);
}

} // namespace quindle
